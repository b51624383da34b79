// A page of the limits dialog: a grid of edit boxes over a limits store.
//
// What the pages share is here; a page adds its table, its labels and its layout.
#pragma once

#include <afxwin.h>

#include <array>
#include <optional>
#include <span>
#include <vector>

#include "AccessibleNames.h"
#include "LayoutPlan.h"
#include "LimitsRules.h"

// The edit box of each field of one variable; 0 where the variable has no such field.
using LimitEditIds = std::array<int, zep::LimitFieldCount>;

// One page in numbers.
struct LimitsPageTable {
    unsigned templateId;
    const zep::LimitsTable& limits;
    std::span<const LimitEditIds> edits;  // as many as the table has variables
    std::optional<zep::LimitFailure> (*check)(const zep::LimitsStore& store);
};

// The text of a message line or a row label.
[[nodiscard]] KZBasicString TextOf(const zep::LimitMessageLine& line);

class LimitsPage : public CDialog {
public:
    ~LimitsPage() override;

    // Creates the page's window as a hidden child of the container. Returns false when it cannot be created.
    [[nodiscard]] bool Create(CWnd* container);

    // Reads the page's variables from a "viewSetup" and shows them, as soon as there is a window to show them in.
    void Load(const XmlDocument::XmlNode& viewSetup);
    // Whether the page accepts what its boxes hold; says in a message what it refuses.
    [[nodiscard]] bool Validate();
    // Whether a box differs from what was loaded.
    [[nodiscard]] bool IsModified();
    // Writes the page's variables into a "viewSetup", as the table's saving rule says.
    void Save(XmlDocument::XmlNode& viewSetup) const;

    // The height in pixels that the page's controls need.
    [[nodiscard]] int PreferredHeight();

    // Moves the page to a rectangle of its container and lays its controls out in it: a page that is hidden only when
    // it is shown.
    void MoveTo(const CRect& area);
    void Show();

protected:
    explicit LimitsPage(const LimitsPageTable& table);

    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    // Sets the texts of labels, heads, captions and boxes.
    virtual void SetLabels() = 0;

    // Puts the page's controls into an empty plan.
    virtual void PlanLayout(LayoutPlan& plan) = 0;

    // Puts one host text into several controls, the first of which has the given id.
    void SetTexts(int firstId, int count, unsigned textId);

    // The control whose text names the row, or the group, of a variable.
    [[nodiscard]] virtual int RowLabelId(std::size_t variable) const noexcept = 0;

private:
    struct EditRow {
        std::array<CEdit, zep::LimitFieldCount> fields;
    };

    [[nodiscard]] CEdit& Edit(zep::LimitCell cell);
    template <class Visitor>
    void ForEachCell(Visitor visit) const;
    void NameForScreenReaders();
    void LayoutNow();
    void ShowFailure(const zep::LimitFailure& failure);

    const LimitsPageTable& m_table;
    zep::LimitsStore m_store;
    std::vector<EditRow> m_edits;
    AccessibleNames m_names;
    int m_nPreferredHeight = 0;  // 0 until it is asked for
    bool m_bLayoutPending = false;
};

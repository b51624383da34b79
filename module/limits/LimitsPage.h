// A page of the limits dialog: a grid of edit boxes over a limits store.
//
// What the pages share is here; a page adds its table, its labels and its layout.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <vector>

#include "LimitsRules.h"
#include "TabPage.h"

// The edit box of each field of one variable; 0 where the variable has no such field.
using LimitEditIds = std::array<int, zep::LimitFieldCount>;

// One page in numbers.
struct LimitsPageTable {
    unsigned templateId;
    const zep::LimitsTable& limits;
    std::span<const LimitEditIds> edits;  // as many as the table has variables
};

// The text of a message line or a row label.
[[nodiscard]] KZBasicString TextOf(const zep::LimitMessageLine& line);

// Two columns of a grid under one caption.
[[nodiscard]] KZLayout& NewPair(LayoutPlan& plan, int first, int second);

class LimitsPage : public TabPage {
public:
    ~LimitsPage() override;

    // Reads the page's variables from a "viewSetup" and shows them, as soon as there is a window to show them in.
    void Load(const XmlDocument::XmlNode& viewSetup);
    // Whether the page accepts what its boxes hold; says in a message what it refuses.
    [[nodiscard]] bool Validate();
    // Whether a box, as Validate has read it, differs from what was loaded.
    [[nodiscard]] bool IsModified() noexcept { return m_store.IsModified(); }
    // Writes the page's variables into a "viewSetup", as the table's saving rule says.
    void Save(XmlDocument::XmlNode& viewSetup) const;

    // An edit box is called by its row, its side and its column.
    void NameControls(AccessibleNames& names, const KZBasicString& title) override;

protected:
    explicit LimitsPage(const LimitsPageTable& table);

    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

    // Sets the texts of labels, heads, captions and boxes.
    virtual void SetLabels() = 0;

    // Puts one host text into several controls, the first of which has the given id.
    void SetTexts(int firstId, int count, unsigned textId);

    // The control whose text names the row, or the group, of a variable.
    [[nodiscard]] virtual int RowLabelId(std::size_t variable) const noexcept = 0;
    // What the page's side is called; empty when it has none.
    [[nodiscard]] virtual KZBasicString SideName() const { return {}; }

private:
    struct EditRow {
        std::array<CEdit, zep::LimitFieldCount> fields;
    };

    [[nodiscard]] CEdit& Edit(zep::LimitCell cell);
    template <class Visitor>
    void ForEachCell(Visitor visit) const;
    void ShowFailure(const zep::LimitFailure& failure);

    const LimitsPageTable& m_table;
    zep::LimitsStore m_store;
    std::vector<EditRow> m_edits;
};

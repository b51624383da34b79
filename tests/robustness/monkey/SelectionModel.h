// What the selection dialog should do, told once more in plain words and independently of the product's own tables.
#pragma once

#include <optional>
#include <string>
#include <vector>

class SelectionModel {
public:
    struct Box {
        int page;  // 0 general, 1 power, 2 harmonics
        int id;
        std::wstring name;  // without the device
        int row;
        int side;   // 0 net, 1 load
        int phase;  // 0 to 2
        bool checked = false;
        bool enabled = true;
    };

    // device: its name; chosen: the host's list; maximum: 0 for none.
    SelectionModel(const std::wstring& device, const std::vector<std::wstring>& chosen, int maximum);

    // The user presses a button of a page. Returns false when the maximum forbids it: nothing changes then.
    bool Press(int page, int id);

    [[nodiscard]] const std::vector<Box>& Boxes() const noexcept { return m_boxes; }
    [[nodiscard]] int Selected() const;
    // Whether the dialog has a box for each of the names.
    [[nodiscard]] bool Offers(const std::vector<std::wstring>& names) const;
    // What the host's list holds after OK.
    [[nodiscard]] std::vector<std::wstring> Names() const;

private:
    void AddBox(int page, int id, const std::wstring& name, int row, int side, int phase);
    void AddGeneralBoxes();
    void AddPowerBoxes();
    void AddHarmonicBoxes();
    [[nodiscard]] std::vector<Box*> GroupOf(int page, int id);
    bool Change(const std::vector<Box*>& group);
    [[nodiscard]] bool Fits(int more) const { return m_maximum == 0 || Selected() + more <= m_maximum; }

    std::wstring m_device;
    int m_maximum;
    std::vector<Box> m_boxes;  // in the order of the list after OK
};

#include "FindingsList.h"

#include <algorithm>

#include "KZUtf8.h"
#include "resources/DialogTextIds.h"
#include "text/EditorText.h"
#include "text/FieldText.h"
#include "text/PlantMessage.h"

namespace {

constexpr int ColumnMessage = 2;

constexpr ReportColumn Columns[] = {
    {IDS_COLUMN_DEVICE, 70},
    {IDS_COLUMN_SETTING, 130},
    {IDS_COLUMN_FINDING, 200},
};

std::wstring Cell(const plant::Finding& finding, int column)
{
    if (column == ColumnMessage)
        return PlantMessage(finding.reason);
    return column == 0 ? FromUtf8(finding.device) : FindingPlace(finding);
}

}  // namespace

void FindingsList::SetUp()
{
    RowList::SetUp(Columns, ColumnMessage,
                   [this](int row, int column) { return Cell(m_findings[static_cast<std::size_t>(row)], column); });
}

void FindingsList::Show(plant::Findings findings)
{
    const plant::Finding* const current = Current();
    const std::optional<plant::Finding> marked = current ? std::optional(*current) : std::nullopt;
    m_findings = std::move(findings);
    ShowRows(static_cast<int>(m_findings.size()));
    SetItemState(-1, 0, LVIS_SELECTED);
    if (!marked)
        return;
    const auto found = std::find(m_findings.begin(), m_findings.end(), *marked);
    if (found != m_findings.end())
        MarkOnly(static_cast<int>(found - m_findings.begin()));
}

const plant::Finding* FindingsList::Current() const
{
    const int row = Marked();
    return row < 0 || row >= static_cast<int>(m_findings.size()) ? nullptr : &m_findings[static_cast<std::size_t>(row)];
}

const plant::Finding* FindingsList::GoTo(int row)
{
    if (m_findings.empty())
        return nullptr;
    const int count = static_cast<int>(m_findings.size());
    MarkOnly((row + count) % count);
    return Current();
}

const plant::Finding* FindingsList::GoToNext()
{
    return GoTo(Marked() + 1);
}

const plant::Finding* FindingsList::GoToPrevious()
{
    return GoTo(std::max(Marked(), 0) - 1);
}

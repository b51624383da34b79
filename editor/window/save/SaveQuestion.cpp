#include "SaveQuestion.h"

#include <afxwin.h>

#include "resources/DialogTextIds.h"
#include "text/EditorText.h"

bool AskToSave(const plant::ReviewCount& count)
{
    const std::wstring question =
        FormatEditorText(IDS_ASK_TO_SAVE, static_cast<int>(count.lines), static_cast<int>(count.devices));
    return AfxMessageBox(question.c_str(), MB_YESNO | MB_ICONQUESTION) == IDYES;
}

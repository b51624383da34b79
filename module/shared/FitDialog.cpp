#include "FitDialog.h"

void FitDialogHeight(CWnd& dialog, const KZLayout& layout)
{
    CRect client;
    dialog.GetClientRect(&client);
    if (const int difference = layout.FixedSize().cy - client.Height(); difference != 0) {
        CRect window;
        dialog.GetWindowRect(&window);
        window.bottom += difference;
        dialog.MoveWindow(&window, TRUE);
        dialog.GetClientRect(&client);
    }
    layout.Layout(client);
}

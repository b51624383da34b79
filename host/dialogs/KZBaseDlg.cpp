#include "KZBaseDlg.h"

IMPLEMENT_DYNAMIC(KZBaseDlg, CDialog)

BEGIN_MESSAGE_MAP(KZBaseDlg, CDialog)
END_MESSAGE_MAP()

KZBaseDlg::KZBaseDlg(unsigned templateId, CWnd* parent) : CDialog(templateId, parent) {}

KZBaseDlg::~KZBaseDlg() = default;

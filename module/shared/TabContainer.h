// What a dialog with pages under a tab control does: it makes the tabs, shows one page at a time, places the pages, and
// lets the keyboard walk from the tabs into the page and on to OK and Cancel.
//
// A dialog has one as a member. The pages and the controls stay the dialog's own.
#pragma once

#include <afxcmn.h>

#include <initializer_list>
#include <vector>

#include "DialogAccess.h"
#include "KZBasicString.h"
#include "TabPage.h"

class TabContainer {
public:
    //   current   the dialog's pointer to the page that is shown, null when none is
    TabContainer(CDialog& dialog, CTabCtrl& tab, TabPage*& current) noexcept
        : m_dialog(dialog), m_tab(tab), m_current(current)
    {
    }

    // Gives the tabs pictures of the host's image folder. They are made anew when the system's colours change, in which
    // their edges are drawn.
    void SetImages(CImageList& images, std::initializer_list<const wchar_t*> fileNames);
    // Adds a tab at the end for a page that has its window.
    void Add(TabPage& page, const KZBasicString& text, int image);
    // Forgets the pages, which are about to be destroyed.
    void Clear() noexcept;

    // Shows the page of the tab that is selected instead of the current one, to which the focus goes if it was in
    // there.
    void ShowSelected();
    // Starts to work for keyboard, screen readers and small screens; the last thing that OnInitDialog does.
    void Attach();

    // Whether there are pages to lay out. Not while a layout is under way: fitting the dialog's height sends WM_SIZE,
    // and the outer layout finishes with the new client area.
    [[nodiscard]] bool CanLayOut() const noexcept { return !m_pages.empty() && !m_layingOut; }
    // Carries out the dialog's plan, fits the dialog's height to it, and moves the pages over the tab control.
    //   tabHeight   of the row of tabs, in pixels
    void Layout(LayoutPlan& plan, int tabHeight);
    // The size code of the tab control's height around a page.
    [[nodiscard]] static int ControlHeight(int tabHeight, int pageHeight);

    // Return on a button inside a page sends the button's command to the top dialog, while the mouse and Space send it
    // to the page: this hands the former to the page too. Returns true when the command came from a page's control.
    bool ForwardCommand(WPARAM wParam, LPARAM lParam) const;

    // Says that the pages could not be opened and ends the dialog with -1.
    void GiveUp();

private:
    struct Tab {
        TabPage* page;
        KZBasicString title;
    };

    [[nodiscard]] CRect PageArea(int tabHeight) const;
    void OrderForTab() const;
    void LoadImages() noexcept;

    CDialog& m_dialog;
    CTabCtrl& m_tab;
    TabPage*& m_current;
    std::vector<Tab> m_pages;  // in tab order
    CImageList* m_images = nullptr;
    std::vector<const wchar_t*> m_imageFiles;
    int m_imageCount = 0;  // of those that were found
    bool m_layingOut = false;
    DialogAccess m_access;
};

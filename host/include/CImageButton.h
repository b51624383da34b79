// A push button that shows a picture beside its text, drawn by the system's own button.
#pragma once

#include <afxwin.h>

#include <memory>

#include "KZBasicString.h"

class KZ_API CImageButton : public CButton {
public:
    CImageButton();
    ~CImageButton() override;

    // Shows the picture of a PNG file; a name without a folder is looked up in the host's image folder.
    //   transparent   the colour that counts as transparent; 0xFFFFFFFF takes the file's own transparency
    //   imageOnTop    true: the picture above the text; false: to the left of it. A button without text at this moment
    //                 shows the picture alone, centred.
    // The picture is scaled to the button's DPI (the file's pixels are for 96). Buttons that show the same file share
    // one picture. Asked for what it shows already, the button does nothing; a file that has changed meanwhile is seen
    // by the next window. A file that is missing or cannot be read leaves the button with its text alone and returns
    // false, as does a button that has no window yet, a process without version 6 of the common controls and one that
    // has run out of memory.
    bool SetImage(const KZBasicString& path, COLORREF transparent, bool imageOnTop);

    // Loads a PNG file as a bitmap of 24 bits, in the file's own size, for image lists. A name without a folder is
    // looked up in the image folder. Pixels that the file leaves transparent get one colour, which transparentColour
    // (may be null) receives. Returns false, leaving the bitmap empty, when the file is missing or cannot be read.
    static bool GetBitmap(const KZBasicString& path, CBitmap& bitmap, COLORREF* transparentColour);

protected:
    void PostNcDestroy() override;

private:
    struct State;
    std::unique_ptr<State> m_shown;
};

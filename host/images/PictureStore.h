// The pictures that image buttons show, so that a dialog with forty equal pictures holds one.
#pragma once

#include <map>
#include <memory>

#include "GdiPicture.h"
#include "KZBasicString.h"

// Lives as long as one image button holds it: every picture is freed with the last of them. Used on the user-interface
// thread alone.
class PictureStore {
public:
    // The store that the image buttons share; made when there is none.
    [[nodiscard]] static std::shared_ptr<PictureStore> Acquire();

    struct Key {
        KZBasicString path;
        COLORREF transparent;  // the colour that counts as such; CLR_INVALID (0xFFFFFFFF): the file's own transparency
        int dpi;               // in dots per inch; 96: the file's own size
        auto operator<=>(const Key&) const = default;
    };
    struct Answer {
        std::shared_ptr<const ButtonPicture> picture;  // null when there is none to be had
        ULONGLONG checkedAt;                           // as PictureFiles has it
    };

    [[nodiscard]] Answer Get(const Key& key);

private:
    struct Entry {
        std::shared_ptr<const PixelImage> source;
        std::shared_ptr<const ButtonPicture> picture;
    };

    [[nodiscard]] static std::shared_ptr<const ButtonPicture> Make(PixelImage image, const Key& key);

    std::map<Key, Entry> m_entries;
};

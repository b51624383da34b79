// Each dialog of the editor with sample data in it, compared with its recorded portrait.
#include <gtest/gtest.h>

#include "Artist.h"
#include "Controls.h"
#include "KZQuorvelantaSetup.h"
#include "ModalScript.h"
#include "PortraitFile.h"
#include "editor/dialogs/SampleDialogs.h"

namespace {

class EditorPortraits : public testing::TestWithParam<std::tuple<editor_tests::SampleDialog, KZLanguage>> {
protected:
    EditorPortraits() { KZQuorvelantaSetup::Get()->SetLanguage(std::get<1>(GetParam())); }
    ~EditorPortraits() override { KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English); }

    Artist m_artist;
};

constexpr auto ByDialogAndLanguage = [](const auto& sample) {
    const bool isEnglish = std::get<1>(sample.param) == KZLanguage::English;
    return std::get<0>(sample.param).name + std::string(isEnglish ? "InEnglish" : "InSpanish");
};

}  // namespace

TEST_P(EditorPortraits, AreAsRecorded)
{
    const editor_tests::SampleDialog& sample = std::get<0>(GetParam());
    std::string portrait;
    {
        kztest::ModalScript script([&] {
            const HWND window = kztest::WaitForDialog();
            portrait = m_artist.Draw(window);
            kztest::PostClick(window, IDCANCEL);
        });
        sample.make()->DoModal();
    }
    ExpectPortrait(std::string("editor-") + sample.name, portrait);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, EditorPortraits,
                         testing::Combine(testing::ValuesIn(editor_tests::SampleDialogs().begin(),
                                                            editor_tests::SampleDialogs().end()),
                                          testing::Values(KZLanguage::English, KZLanguage::Spanish)),
                         ByDialogAndLanguage);

// What the tests of the running editor share: a folder with the editor and a project beside it.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>

#include "EditorProcess.h"
#include "ProjectXml.h"
#include "TemporaryFolder.h"

namespace editor_tests {

class EditorTest : public testing::Test {
protected:
    // Three devices: two that the test module serves, of which the second has no child dialog, and one of another type.
    EditorTest();

    // Starts the editor on the project, in English.
    EditorProcess& Start(const std::vector<std::string>& arguments);
    // Starts it with these arguments alone.
    EditorProcess& StartBare(const std::vector<std::string>& arguments);

    // Every file of the project, or of another folder beside it, with its content.
    [[nodiscard]] std::map<std::string, std::string> ProjectFiles(const char* folder = "plant") const;
    // The same without what protects unsaved changes.
    [[nodiscard]] std::map<std::string, std::string> Documents() const
    {
        auto files = ProjectFiles();
        std::erase_if(files, [](const auto& file) { return file.first.ends_with(".kzrecovery"); });
        return files;
    }
    [[nodiscard]] std::string ProjectPath() const;

    // Expects exit status 2, nothing on standard output, and one line on standard error that holds all the parts.
    void ExpectError(EditorProcess& editor, const std::vector<std::string>& parts);

    kztest::TemporaryFolder m_folder;
    EditorFolder m_program;
    std::unique_ptr<EditorProcess> m_editor;
};

}  // namespace editor_tests

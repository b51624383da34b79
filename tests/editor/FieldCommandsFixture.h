// What the tests of the commands on fields share: a plant of two filters and a device of another type.
#pragma once

#include <gmock/gmock.h>

#include <sstream>

#include "EditorFixture.h"
#include "KZUtf8.h"

namespace editor_tests {

inline constexpr const char* FirstDevice = "<device>\n"
                                           "  <!-- Núñez -->\n"
                                           "  <information>\n"
                                           "    <version>2.4.1</version>\n"
                                           "    <mode>9</mode>\n"
                                           "    <filters>3</filters>\n"
                                           "    <transRatio>1000</transRatio>\n"
                                           "    <minCurrent>007</minCurrent>\n"
                                           "    <numZEP>2</numZEP>\n"
                                           "  </information>\n"
                                           "</device>\n";

class FieldCommandsTest : public EditorTest {
protected:
    using Lines = std::vector<std::string>;

    // The first filter has settings, a unit and limits, the second has none.
    FieldCommandsTest()
    {
        std::string main = m_folder.Read("plant/main.xml");
        main.replace(main.find("</configuration>"), 0,
                     "<unitSetups><unitSetup><driverId>zep-1</driverId>"
                     "<unit><name>RP</name><decimals>2</decimals><factor>3</factor></unit></unitSetup></unitSetups>\n"
                     "<viewSetups><viewSetup><driverId>zep-1</driverId><check><var>PF</var>"
                     "<nominal>1.000000</nominal><maxW>0.950000</maxW>"
                     "<minW>0.900000</minW><minD>0.800000</minD></check></viewSetup></viewSetups>\n");
        m_folder.Write("plant/main.xml", main);
        m_folder.Write("plant/devices/zep-1.xml", FirstDevice);
    }

    static Lines LinesOf(const std::string& text)
    {
        Lines lines;
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);)
            lines.push_back(line);
        return lines;
    }

    // The lines that a command prints which is to end with this status, and says nothing on standard error.
    Lines Run(const std::vector<std::string>& arguments, int status = 0)
    {
        EditorProcess& editor = Start(arguments);
        EXPECT_EQ(editor.Wait(), status) << editor.Errors();
        EXPECT_EQ(editor.Errors(), "");
        return LinesOf(editor.Output());
    }

    // Compares the plant with the other one.
    Lines Diff(int status) { return Run({"diff", ToUtf8((m_folder.Path() / "other").wstring())}, status); }

    void CopyPlant(const char* name) const
    {
        std::filesystem::copy(m_folder.Path() / "plant", m_folder.Path() / name,
                              std::filesystem::copy_options::recursive);
    }
};

}  // namespace editor_tests

// A plant whose values are exported and imported: two filters, one of which has everything set, a device of another
// type, and a filter that nobody has set up yet.
#pragma once

#include <gmock/gmock.h>

#include "ProjectFixture.h"
#include "fields/Field.h"
#include "table/CsvText.h"
#include "table/Export.h"

namespace kztest {

class TableFixture : public ProjectFixture {
protected:
    using Row = std::vector<std::string>;

    TableFixture()
    {
        m_folder.Write("main.xml",
                       "<configuration>\n"
                       "  <devices>\n"
                       "    <device><driverId>zep-01</driverId><name>Hall 1, \"A\"</name><type>ZEP</type></device>\n"
                       "    <device><driverId>zep-02</driverId><name>Gr\xC3\xBA"
                       "a</name><type>ZEP</type></device>\n"
                       "    <device><driverId>meter</driverId><name>Meter</name><type>XYZ</type></device>\n"
                       "    <device><driverId>zep-03</driverId><name>zep-01</name><type>ZEP</type></device>\n"
                       "  </devices>\n"
                       "  <unitSetups><unitSetup><driverId>zep-01</driverId>\n"
                       "    <unit><name>AP-VA</name><decimals>2</decimals><factor>3</factor></unit>\n"
                       "    <unit><name>RP</name><decimals>0</decimals><factor>0</factor></unit>\n"
                       "  </unitSetup></unitSetups>\n"
                       "</configuration>\n");
        m_folder.Write("devices/zep-01.xml", InformationText("12"));
        m_folder.Write("devices/zep-02.xml", "");
        std::filesystem::remove(m_folder.Path() / "devices/a.xml");
        std::filesystem::remove(m_folder.Path() / "devices/b.xml");
        Open();
    }

    static std::string InformationText(const std::string& minCurrent)
    {
        return "<device>\n  <information>\n    <version>2.4</version>\n    <serialNum>ZEP-7</serialNum>\n"
               "    <mode>9</mode>\n    <transRatio>0100</transRatio>\n    <minCurrent>" +
               minCurrent + "</minCurrent>\n  </information>\n</device>\n";
    }
    [[nodiscard]] std::string Export(const Row& keys) const
    {
        const plant::StoredProject files(m_folder.Path());
        plant::DeviceReader reader(*KZMainCfg::Get(), files);
        return plant::ExportTable(m_project->Devices(), reader, keys);
    }
    static Row AllKeys()
    {
        Row keys;
        for (const plant::Field& field : *plant::FieldsOfType(L"ZEP"))
            keys.push_back(field.key);
        return keys;
    }
    static std::vector<Row> Rows(const std::string& text)
    {
        std::vector<Row> rows;
        plant::CsvReader reader(text, L"exported");
        while (reader.Next())
            rows.emplace_back(reader.Values().begin(), reader.Values().end());
        return rows;
    }
};

}  // namespace kztest

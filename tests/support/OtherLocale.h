// A numeric locale of the C library other than "C", as a host may have set it.
#pragma once

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <string>

// Spain's, with a decimal comma, or Afghanistan's, with a separator outside ASCII, for as long as it lives; "C"
// afterwards.
class OtherLocale {
public:
    enum Country { Spain, Afghanistan };

    explicit OtherLocale(Country country)
    {
#ifdef _WIN32
        // Locale names differ between the C libraries.
        const std::initializer_list<const char*> spanish{"Spanish_Spain.1252", "Spanish", "es-ES", "es_ES"};
        const std::initializer_list<const char*> pashto{"ps-AF", "ps_AF", "Pashto"};
        for (const char* name : country == Spain ? spanish : pashto)
            m_isSet = m_isSet || std::setlocale(LC_NUMERIC, name);
#else
        Set(country == Spain ? "es_ES" : "ps_AF");
#endif
        m_isSet = m_isSet && *std::localeconv()->decimal_point != '.';
    }
    ~OtherLocale()
    {
        std::setlocale(LC_NUMERIC, "C");
    }
    OtherLocale(const OtherLocale&) = delete;
    OtherLocale& operator=(const OtherLocale&) = delete;

    // False where the machine does not know the country's conventions.
    [[nodiscard]] bool IsSet() const noexcept
    {
        return m_isSet;
    }

private:
#ifndef _WIN32
    // Compiled here, so that the machine need not have it.
    void Set(const std::string& name)
    {
        std::string folder = (std::filesystem::temp_directory_path() / "kz-locale-XXXXXX").string();
        if (!::mkdtemp(folder.data()))
            return;
        m_folder = folder;
        const std::string locale = name + ".UTF-8";
        const std::string command = "localedef --no-archive -i " + name + " -f UTF-8 " + folder + "/" + locale;
        ::setenv("LOCPATH", folder.c_str(), 1);
        m_isSet = std::system((command + " 2> /dev/null").c_str()) != -1 && std::setlocale(LC_NUMERIC, locale.c_str());
    }

    std::filesystem::path m_folder;
#endif

    bool m_isSet = false;
};

#pragma once

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <string>

#ifdef __linux__
#include <unistd.h>
#endif

namespace huebase::testing {

// Puts the C library's numeric locale back as it was when the object goes.
class NumericLocale {
public:
    NumericLocale() : previous_(std::setlocale(LC_NUMERIC, nullptr)) {}
    ~NumericLocale() {
        std::setlocale(LC_NUMERIC, previous_.c_str());
        if (!compiled_.empty()) {
            std::error_code ignored;
            std::filesystem::remove_all(compiled_, ignored);
        }
    }
    NumericLocale(const NumericLocale&) = delete;
    NumericLocale& operator=(const NumericLocale&) = delete;

    // Switches to a locale whose decimal separator is a comma. Where none is
    // installed, compiles German from the system's locale sources into a
    // private folder (glibc's LOCPATH), so the check runs on a bare machine
    // too; false when that is not possible either.
    bool useDecimalComma() {
        for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE", "German_Germany.1252"})
            if (std::setlocale(LC_NUMERIC, name) != nullptr)
                return true;
#ifdef __linux__
        namespace fs = std::filesystem;
        if (!fs::exists("/usr/share/i18n/locales/de_DE"))
            return false;
        // One folder per process: tests run side by side.
        compiled_ =
            fs::temp_directory_path() / ("huebase-test-locales-" + std::to_string(::getpid()));
        const fs::path locale = compiled_ / "de_DE.UTF-8";
        fs::create_directories(compiled_);
        const std::string command =
            "localedef -i de_DE -f UTF-8 '" + locale.string() + "' >/dev/null 2>&1";
        if (std::system(command.c_str()) != 0 && !fs::exists(locale / "LC_NUMERIC"))
            return false;
        ::setenv("LOCPATH", compiled_.c_str(), 1);
        return std::setlocale(LC_NUMERIC, "de_DE.UTF-8") != nullptr;
#else
        return false;
#endif
    }

private:
    std::string previous_;
    std::filesystem::path compiled_;
};

} // namespace huebase::testing

#pragma once

#include <clocale>
#include <string>

namespace huebase::testing {

// Puts the C library's numeric locale back as it was when the object goes.
class NumericLocale {
public:
    NumericLocale() : previous_(std::setlocale(LC_NUMERIC, nullptr)) {}
    ~NumericLocale() { std::setlocale(LC_NUMERIC, previous_.c_str()); }
    NumericLocale(const NumericLocale&) = delete;
    NumericLocale& operator=(const NumericLocale&) = delete;

    // Switches to an installed locale whose decimal separator is a comma;
    // false when none is installed.
    bool useDecimalComma() {
        for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE", "German_Germany.1252"})
            if (std::setlocale(LC_NUMERIC, name) != nullptr)
                return true;
        return false;
    }

private:
    std::string previous_;
};

} // namespace huebase::testing

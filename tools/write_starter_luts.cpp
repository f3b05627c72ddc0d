// Writes the starter library into a folder (data/myLuts), with the .lut
// writer itself and '.' as the decimal separator so that every reader can
// read the files back.

#include "browser/lut_file.h"
#include "util/misc_files.h"

#include "starter_ramps.h"

#include <iostream>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: huebase_write_starter_luts <folder>\n";
        return 2;
    }
    const std::string folder = argv[1];
    int failures = 0;
    for (const huebase::starter::StarterRamp& ramp : huebase::starter::starterRamps()) {
        const std::string path = folder + "/" + ramp.fileName;
        huebase::MiscFiles::KillFile(path);
        if (huebase::LutFile::LutSaveAs(path, ramp.table, ramp.noDataColor, '.') !=
            huebase::LutFile::SaveResult::Saved)
            ++failures;
    }
    return failures == 0 ? 0 : 1;
}

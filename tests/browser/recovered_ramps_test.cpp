#include "browser/recovered_ramps.h"

#include "browser/lut_test_support.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace huebase {
namespace {

using testing::contentsOf;
using testing::ScratchFolder;
using testing::tableAt;

std::tm at(int day, int hour, int minute, int second) {
    std::tm time{};
    time.tm_year = 2026 - 1900;
    time.tm_mon = 10;
    time.tm_mday = day;
    time.tm_hour = hour;
    time.tm_min = minute;
    time.tm_sec = second;
    return time;
}

std::vector<std::string> numbered(const std::string& stem, int from, int to) {
    std::vector<std::string> names;
    for (int n = from; n <= to; ++n)
        names.push_back(stem + (n > 1 ? " (" + std::to_string(n) + ")" : "") + ".lut");
    return names;
}

std::vector<std::string> joined(std::vector<std::string> a, const std::vector<std::string>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

TEST(RecoveredRamps, NamedByLocalTimeNumberedWhenTakenAndPrunedToTheNewestTwenty) {
    const std::string stem = "2026-11-23 14-05-09";
    struct Case {
        const char* what;
        std::vector<std::string> before; // in the folder, oldest first
        std::tm now;
        std::vector<std::string> after; // oldest first, the new file last
    };
    const std::vector<Case> cases = {
        {"missing folder", {}, at(23, 14, 5, 9), {stem + ".lut"}},
        {"taken twice", numbered(stem, 1, 2), at(23, 14, 5, 9), numbered(stem, 1, 3)},
        {"padded fields", {}, at(3, 4, 5, 6), {"2026-11-03 04-05-06.lut"}},
        {"older days go first",
         joined(numbered("2026-11-22 10-00-00", 1, 10), numbered("2026-11-21 10-00-00", 1, 10)),
         at(23, 14, 5, 9),
         joined(
             joined(numbered("2026-11-21 10-00-00", 2, 10), numbered("2026-11-22 10-00-00", 1, 10)),
             {stem + ".lut"})},
        {"numbers count, not their text", numbered(stem, 1, 20), at(23, 14, 5, 9),
         numbered(stem, 2, 21)},
    };
    const LutTable table = tableAt({0.0f, 12.5f, 100.0f});
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        ScratchFolder scratch;
        const std::filesystem::path folder = scratch.path() / "myLuts" / "Recovered";
        const bool folderExists = !c.before.empty();
        if (folderExists) {
            std::filesystem::create_directories(folder);
            scratch.write("myLuts/Recovered/notes.txt", "kept");
        }
        for (const std::string& name : c.before)
            scratch.write("myLuts/Recovered/" + name, "0,0\r\n");

        const RecoveredRamps kept(scratch.file("myLuts/Recovered"), [&c] { return c.now; });
        const std::optional<std::string> written = kept.keep(table, 0xFFFFFF, '.');
        ASSERT_TRUE(written.has_value());
        EXPECT_EQ(std::filesystem::path(*written).filename().string(), c.after.back());
        EXPECT_EQ(contentsOf(*written), LutFile::text(table, 0xFFFFFF, '.'));
        EXPECT_EQ(kept.names(), c.after);
        EXPECT_EQ(std::filesystem::exists(folder / "notes.txt"), folderExists)
            << "only .lut files are pruned";
    }
}

TEST(RecoveredRamps, AFolderThatCannotBeMadeIsSkippedQuietly) {
    ScratchFolder scratch;
    scratch.write("Recovered", "a file where the folder should be");
    const RecoveredRamps kept(scratch.file("Recovered"));
    EXPECT_EQ(kept.keep(tableAt({0.0f, 1.0f}), 0), std::nullopt);
    EXPECT_EQ(contentsOf(scratch.path() / "Recovered"), "a file where the folder should be");
    EXPECT_TRUE(kept.names().empty());
}

} // namespace
} // namespace huebase

#include "editor/graph_settings.h"

#include "support/scratch_folder.h"
#include "util/text_file.h"

#include <gtest/gtest.h>

namespace huebase {
namespace {

using Kind = CountScale::Kind;

TEST(GraphSettings, RoundTripThroughTheFileKeepingItsOtherLines) {
    testing::ScratchFolder folder;
    const std::string path = GraphSettings::fileIn(folder.file(""));
    EXPECT_EQ(path, folder.file("") + "/huebase.ini");
    EXPECT_EQ(GraphSettings::read(path), GraphSettings{}) << "no file: the defaults";
    for (const Kind kind : CountScale::kKinds) {
        for (const bool fill : {false, true}) {
            const GraphSettings settings{CountScale(kind), fill};
            ASSERT_TRUE(settings.write(path));
            EXPECT_EQ(GraphSettings::read(path), settings);
        }
    }

    folder.write("huebase.ini", "# mine\nwidth=3\ncount_scale=log\nramp_fill=0\ncount_scale=x\n");
    ASSERT_TRUE((GraphSettings{CountScale(Kind::SquareRoot), true}.write(path)));
    EXPECT_EQ(readTextFile(path), "# mine\nwidth=3\ncount_scale=sqrt\nramp_fill=1\n");

    EXPECT_FALSE(GraphSettings{}.write(folder.file("missing/huebase.ini")));
}

TEST(GraphSettings, UnknownOrMalformedContentLeavesTheDefaults) {
    testing::ScratchFolder folder;
    const std::pair<std::string, GraphSettings> rows[] = {
        {"count_scale=LOG\nramp_fill=yes\n", {}},
        {"garbage\n=\n==\n\xFF\xFE\0x\n", {}},
        {"count_scale\nramp_fill\n", {}},
        {"  count_scale = sqrt \r\nramp_fill=1\r\n", {CountScale(Kind::SquareRoot), true}},
        {"ramp_fill=1\nramp_fill=0", {}},
        {"count_scale=log\ncount_scale=bad\n", {CountScale(Kind::Logarithmic), false}},
    };
    for (const auto& [text, settings] : rows)
        EXPECT_EQ(GraphSettings::read(folder.write("huebase.ini", text)), settings) << text;
    EXPECT_EQ(GraphSettings::read(folder.file("")), GraphSettings{}) << "a folder, not a file";
}

} // namespace
} // namespace huebase

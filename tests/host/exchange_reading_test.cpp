#include "host/exchange_reader.h"
#include "util/misc_files.h"
#include "util/vb_error.h"

#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace huebase {
namespace {

using Rows = std::vector<ValuesTable::Row>;

// The table an exchange file gives when it is sized to the file's line count
// and filled, as the session does.
struct Reading {
    ValuesTable table;
    int error = 0;
};

Reading readExchangeText(const std::string& text) {
    testing::ScratchFolder folder;
    const std::string path = folder.write("col.tmp", text);
    Reading reading{ValuesTable(MiscFiles::getFileLineNumber(path))};
    try {
        readExchangeTable(path, reading.table);
    } catch (const VbError& e) {
        reading.error = e.number();
    }
    return reading;
}

TEST(ExchangeReading, EachLineFillsOneRowWhateverTheLineEnds) {
    const Rows expected{{-12.5, 3}, {0, 17}, {1250.25, 1}};
    for (const std::string text : {"-12.5,3\n0,17\n1250.25,1\n", "-12.5,3\r\n0,17\r\n1250.25,1\r\n",
                                   "-12.5,3\r\n0,17\n1250.25,1", "-12.5,3\r0,17\r1250.25,1\r"}) {
        const Reading reading = readExchangeText(text);
        EXPECT_EQ(reading.error, 0) << text;
        EXPECT_EQ(reading.table.data(), expected) << text;
    }
}

TEST(ExchangeReading, QuotedAndUnquotedFieldsWithSpaces) {
    const Reading reading =
        readExchangeText("  7 ,\t\"key, one\"  \n\"8\", 2.50 \n \"text\" , \"\"\n9,\n");
    EXPECT_EQ(reading.error, 0);
    ASSERT_EQ(reading.table.rows(), 4);
    EXPECT_EQ(reading.table.data(), (Rows{{7, "key, one"}, {"8", 2.5}, {"text", ""}, {9, {}}}));
    // A quoted number stays text: it never equals the number.
    EXPECT_TRUE(reading.table.at(2, 1).isText());
    EXPECT_TRUE(reading.table.at(4, 2).isEmpty());
}

TEST(ExchangeReading, EmptyFileGivesNoRows) {
    const Reading reading = readExchangeText("");
    EXPECT_EQ(reading.error, 0);
    EXPECT_TRUE(reading.table.empty());
}

TEST(ExchangeReading, BlankLinesAtTheEndLeaveTheirRowsEmpty) {
    const Reading reading = readExchangeText("1,2\n3,4\n\n\n");
    EXPECT_EQ(reading.error, 0);
    EXPECT_EQ(reading.table.data(), (Rows{{1, 2}, {3, 4}, {}, {}}));
}

TEST(ExchangeReading, MissingFieldAtTheEndIsInputPastEndOfFile) {
    // The last line holds one field: the row asks for a second one.
    Reading reading = readExchangeText("1,10\n2\n");
    EXPECT_EQ(reading.error, VbError::InputPastEndOfFile);
    EXPECT_EQ(reading.table.at(1, 1), Variant(1));
    EXPECT_EQ(reading.table.at(2, 1), Variant(2));

    // A short line borrows from the next one, so the shortage shows at the end.
    reading = readExchangeText("1\n2,20\n");
    EXPECT_EQ(reading.error, VbError::InputPastEndOfFile);
    EXPECT_EQ(reading.table.at(1, 2), Variant(2));
}

TEST(ExchangeReading, FieldsBeyondTheRowsAreSubscriptOutOfRange) {
    EXPECT_EQ(readExchangeText("1,10,100\n2,20\n").error, VbError::SubscriptOutOfRange);
    // A comma at the end of a line announces one more field.
    EXPECT_EQ(readExchangeText("1,10,\n").error, VbError::SubscriptOutOfRange);
}

TEST(ExchangeReading, ShortAndLongLinesThatBalanceFillTheRowsInFileOrder) {
    const Reading reading = readExchangeText("1,2,3\n4\n");
    EXPECT_EQ(reading.error, 0);
    EXPECT_EQ(reading.table.data(), (Rows{{1, 2}, {3, 4}}));
}

TEST(ValuesTableRows, RowsCountFromOneAndTwoColumns) {
    ValuesTable table(2);
    table.at(2, 2) = Variant("x");
    EXPECT_EQ(table.data()[1][1], Variant("x"));
    for (const auto& [row, column] : {std::pair{0, 1}, {3, 1}, {1, 0}, {1, 3}}) {
        try {
            table.at(row, column);
            ADD_FAILURE() << row << "," << column;
        } catch (const VbError& e) {
            EXPECT_EQ(e.number(), VbError::SubscriptOutOfRange);
        }
    }
}

} // namespace
} // namespace huebase

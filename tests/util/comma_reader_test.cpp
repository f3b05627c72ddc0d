#include "util/comma_reader.h"
#include "util/vb_error.h"

#include "support/numeric_locale.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace huebase {
namespace {

// Every field of the text, read until the reader says it is at the end.
std::vector<Variant> readAll(std::string text) {
    CommaReader reader(std::move(text));
    std::vector<Variant> fields;
    while (!reader.atEnd())
        fields.push_back(reader.readField());
    return fields;
}

int readErrorNumber(CommaReader& reader) {
    try {
        reader.readField();
    } catch (const VbError& e) {
        return e.number();
    }
    return 0;
}

int fileErrorNumber(const std::string& path) {
    try {
        CommaReader::fromFile(path);
    } catch (const VbError& e) {
        return e.number();
    }
    return 0;
}

using Fields = std::vector<Variant>;

TEST(CommaReaderFields, NumbersAndTextsAcrossAnyLineEnd) {
    EXPECT_EQ(readAll("123.5,17\r\n-4,2\n0.25,1\r7,8"), (Fields{123.5, 17, -4, 2, 0.25, 1, 7, 8}));
    EXPECT_EQ(readAll("1\r\r2"), (Fields{1, Variant(), 2}));
}

TEST(CommaReaderFields, BlanksAroundFieldsAreSkipped) {
    EXPECT_EQ(readAll("  1 ,\t2\t\n \"a b\"  ,  hello world  "),
              (Fields{1, 2, "a b", "hello world"}));
}

TEST(CommaReaderFields, UnquotedFieldsAreNumbersOnlyWhenWhollyNumeric) {
    const Fields fields = readAll("+5,.5,1e3,-0.125,1x,abc,-,inf,nan,0x10,1 2,\"7\"");
    EXPECT_EQ(fields,
              (Fields{5, 0.5, 1000, -0.125, "1x", "abc", "-", "inf", "nan", "0x10", "1 2", "7"}));
    EXPECT_TRUE(fields.back().isText());
}

TEST(CommaReaderFields, QuotedTextKeepsCommasAndDropsWhatFollowsTheQuote) {
    EXPECT_EQ(readAll("\"a, b\",3\n\"x\"junk , 4\n\"\",\"line\nbreak\""),
              (Fields{"a, b", 3, "x", 4, "", "line\nbreak"}));
    EXPECT_EQ(readAll("1,\"unclosed, to the end\n"), (Fields{1, "unclosed, to the end\n"}));
    EXPECT_TRUE(readAll("\"\"").front().isText()); // an empty quoted text is not Empty
}

TEST(CommaReaderFields, EmptyFieldsBetweenCommasAndAfterATrailingComma) {
    EXPECT_EQ(readAll("1,,2"), (Fields{1, Variant(), 2}));
    EXPECT_EQ(readAll("1,\n2"), (Fields{1, Variant(), 2}));
    EXPECT_EQ(readAll("1, \t"), (Fields{1, Variant()}));
    EXPECT_EQ(readAll(",\r\n"), (Fields{Variant(), Variant()}));
    EXPECT_TRUE(readAll("1,,2")[1].isEmpty());
}

TEST(CommaReaderFields, ABlankLineBetweenRecordsIsOneEmptyFieldTrailingOnesAreNothing) {
    EXPECT_EQ(readAll("1,2\n\n3,4\n"), (Fields{1, 2, Variant(), 3, 4}));
    EXPECT_EQ(readAll("1,2\r\n \t\r\n3,4"), (Fields{1, 2, Variant(), 3, 4}));
    EXPECT_EQ(readAll("1,2\r\n\r\n  \n\n"), (Fields{1, 2}));
    EXPECT_TRUE(CommaReader("\n \r\n\t").atEnd());
}

TEST(CommaReaderRecords, ARecordContinuesOnTheNextLineAndReadingPastTheEndIsError62) {
    CommaReader reader("1\n2,3\n");
    EXPECT_EQ(reader.readField(), Variant(1));
    EXPECT_EQ(reader.readField(), Variant(2));
    EXPECT_FALSE(reader.atEnd());
    EXPECT_EQ(reader.readField(), Variant(3));
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(readErrorNumber(reader), VbError::InputPastEndOfFile);

    CommaReader empty("");
    EXPECT_TRUE(empty.atEnd());
    try {
        empty.readField();
        ADD_FAILURE() << "read past the end";
    } catch (const VbError& e) {
        EXPECT_EQ(e.message(), "Error: 62. Input past end of file");
    }
}

TEST(CommaReaderRecords, ANumberTooLargeForADoubleIsOverflow) {
    CommaReader reader("1e999,2");
    EXPECT_EQ(readErrorNumber(reader), VbError::Overflow);
}

TEST(CommaReaderRecords, NumbersUseAPointWhateverTheLocale) {
    testing::NumericLocale locale;
    if (!locale.useDecimalComma())
        GTEST_SKIP() << "no locale with a decimal comma is installed";
    EXPECT_EQ(readAll("1.5,\"2,5\",3,5"), (Fields{1.5, "2,5", 3, 5}));
}

TEST(CommaReaderFiles, ReadsTheWholeFile) {
    testing::ScratchFolder folder;
    CommaReader reader = CommaReader::fromFile(folder.write("col.tmp", "10,3\r\n20.5,1\r\n"));
    Fields fields;
    while (!reader.atEnd())
        fields.push_back(reader.readField());
    EXPECT_EQ(fields, (Fields{10, 3, 20.5, 1}));
}

TEST(CommaReaderFiles, OpenFailuresAreTheClassicFileErrors) {
    testing::ScratchFolder folder;
    EXPECT_EQ(fileErrorNumber(folder.file("missing.tmp")), VbError::FileNotFound);
    EXPECT_EQ(fileErrorNumber(folder.file("no folder/col.tmp")), VbError::PathNotFound);
    EXPECT_EQ(fileErrorNumber(folder.file("")), VbError::PathFileAccessError); // a folder
    EXPECT_EQ(fileErrorNumber(""), VbError::PathFileAccessError);
}

TEST(CommaReaderFiles, AFileWithoutReadPermissionIsError70) {
    testing::ScratchFolder folder;
    const std::string locked = folder.write("locked.tmp", "1");
    std::filesystem::permissions(locked, std::filesystem::perms::none);
    const int lockedError = fileErrorNumber(locked);
    std::filesystem::permissions(locked, std::filesystem::perms::owner_all);
    if (lockedError == 0)
        GTEST_SKIP() << "running with rights that ignore file permissions";
    EXPECT_EQ(lockedError, VbError::PermissionDenied);
}

} // namespace
} // namespace huebase

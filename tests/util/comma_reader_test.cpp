#include "util/comma_reader.h"
#include "util/error_test_support.h"

#include "support/numeric_locale.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <string>

namespace huebase {
namespace {

using testing::errorNumberOf;

// Every field until the reader is at its end, each followed by ';': numbers
// in their shortest form, texts in single quotes, Empty as '_'.
std::string fieldsOf(CommaReader reader) {
    std::string fields;
    while (!reader.atEnd()) {
        const Variant field = reader.readField();
        fields += field.isText()    ? "'" + field.toText() + "'"
                  : field.isEmpty() ? "_"
                                    : field.toText();
        fields += ';';
    }
    return fields;
}

TEST(CommaReader, ReadsNumbersTextsAndEmptyFieldsAcrossLines) {
    const std::pair<const char*, const char*> rows[] = {
        {"123.5,17\r\n-4,2\n0.25,1\r7,8", "123.5;17;-4;2;0.25;1;7;8;"},
        {"  1 ,\t2\t\n \"a b\"  ,  hello world  ", "1;2;'a b';'hello world';"},
        {"+5,.5,1e3,-0.125,1x,abc,-,inf,nan,0x10,1 2,\"7\"",
         "5;0.5;1000;-0.125;'1x';'abc';'-';'inf';'nan';'0x10';'1 2';'7';"},
        // Whole numbers on either side of the integer reading, and zero's sign.
        {"-0,007,-999999999999999,1000000000000001,12345678901234567890",
         "-0;7;-999999999999999;1000000000000001;12345678901234567168;"},
        {"\"a, b\",3\n\"x\"junk , 4\n\"\",\"line\nbreak\"", "'a, b';3;'x';4;'';'line\nbreak';"},
        {"1,\"unclosed, to the end\n", "1;'unclosed, to the end\n';"},
        {"1,,2", "1;_;2;"},
        {"1,\n2", "1;_;2;"},
        {"1, \t", "1;_;"},
        {",\r\n", "_;_;"},
        {"1\r\r2", "1;_;2;"},
        {"1,2\r\n \t\r\n3,4", "1;2;_;3;4;"},
        {"1,2\r\n\r\n  \n\n", "1;2;"},
        {"\n \r\n\t", ""},
    };
    for (const auto& [text, fields] : rows)
        EXPECT_EQ(fieldsOf(CommaReader(text)), fields) << text;
}

TEST(CommaReader, ReadingPastTheEndIsError62AndAHugeNumberIsOverflow) {
    CommaReader reader("1\n");
    EXPECT_EQ(reader.readField(), Variant(1));
    EXPECT_EQ(errorNumberOf([&] { reader.readField(); }), VbError::InputPastEndOfFile);
    EXPECT_EQ(errorNumberOf([] { CommaReader("").readField(); }), VbError::InputPastEndOfFile);
    EXPECT_EQ(errorNumberOf([] { CommaReader("1e999,2").readField(); }), VbError::Overflow);
}

TEST(CommaReader, NumbersUseAPointWhateverTheLocale) {
    testing::NumericLocale locale;
    if (!locale.useDecimalComma())
        GTEST_SKIP() << "no locale with a decimal comma is installed";
    EXPECT_EQ(fieldsOf(CommaReader("1.5,\"2,5\",3,5")), "1.5;'2,5';3;5;");
}

TEST(CommaReader, ReadsAWholeFileAndFailsToOpenWithTheClassicFileErrors) {
    testing::ScratchFolder folder;
    EXPECT_EQ(fieldsOf(CommaReader::fromFile(folder.write("col.tmp", "10,3\r\n20.5,1\r\n"))),
              "10;3;20.5;1;");
    auto openError = [](const std::string& path) {
        return errorNumberOf([&] { CommaReader::fromFile(path); });
    };
    EXPECT_EQ(openError(folder.file("missing.tmp")), VbError::FileNotFound);
    EXPECT_EQ(openError(folder.file("no folder/col.tmp")), VbError::PathNotFound);
    EXPECT_EQ(openError(folder.file("")), VbError::PathFileAccessError); // a folder
    EXPECT_EQ(openError(""), VbError::PathFileAccessError);
}

} // namespace
} // namespace huebase

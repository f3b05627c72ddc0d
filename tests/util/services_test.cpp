#include "support/service_recorder.h"
#include "util/messages.h"
#include "util/program_exit.h"

#include <gtest/gtest.h>

namespace huebase {
namespace {

TEST(Services, MessagesAndProgramEndsReachTheInstalledHandlers) {
    testing::ServiceRecorder recorder;
    recorder.queueAnswer(MessageAnswer::Cancel);
    EXPECT_EQ(showMessage("Overwrite x ?", "File exists ...", MessageIcon::Question,
                          MessageButtons::OkCancel),
              MessageAnswer::Cancel);
    EXPECT_EQ(showMessage("second", "", MessageIcon::None, MessageButtons::YesNo),
              MessageAnswer::Yes);
    ASSERT_EQ(recorder.messages().size(), 2u);
    EXPECT_EQ(recorder.messages()[0].text, "Overwrite x ?");
    EXPECT_EQ(recorder.messages()[0].title, "File exists ...");
    EXPECT_EQ(recorder.messages()[0].icon, MessageIcon::Question);
    endProgram(3);
    EXPECT_EQ(recorder.exitCodes(), std::vector<int>{3});
}

} // namespace
} // namespace huebase

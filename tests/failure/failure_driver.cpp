// Runs one step of the program that touches the disk, without a screen, and
// prints what the user and the host would see, one event a line:
//   message: <text>      a message box (answered with its first button)
//   status: <text>       the status handed to the host
//   exit: <code>         the program ended
//   result: <outcome>    the outcome of a save
//   rows: <n>            the .lut files the library browser lists
// The failure injection tests run it as another user or on a full disk.
//
//   huebase_failure_driver answer FOLDER        start on FOLDER, then OK with a red ramp
//   huebase_failure_driver save PATH            save the ramp as PATH (OK to overwrite)
//   huebase_failure_driver library FOLDER NAME  open the library of FOLDER, then save
//                                               the ramp there as NAME
#include "browser/color_bar_row.h"
#include "browser/file_list.h"
#include "browser/lut_browser.h"
#include "browser/lut_library.h"
#include "host/host_session.h"
#include "support/flat_colors.h"
#include "util/messages.h"
#include "util/program_exit.h"

#include <QApplication>

#include <iostream>
#include <string>

namespace {

using namespace huebase;

// Two nodes, black at 0 and red at 100.
const LutTable kRamp = {{0.0f, MethodLin, 0, 100.0f}, {100.0f, MethodLin, 0x0000FF, 100.0f}};

class PrintingNotifier : public HostNotifier {
public:
    bool tell(const std::string& status) override {
        std::cout << "status: " << status << '\n';
        return true;
    }
    std::string unreachableMessage() const override { return "host unreachable"; }
};

const char* resultName(LutFile::SaveResult result) {
    switch (result) {
    case LutFile::SaveResult::Saved:
        return "Saved";
    case LutFile::SaveResult::Cancelled:
        return "Cancelled";
    case LutFile::SaveResult::Failed:
        return "Failed";
    }
    return "?";
}

int answer(const std::string& folder) {
    PrintingNotifier notifier;
    HostSession session(folder, notifier);
    if (session.start())
        session.answerDefined(huebase::testing::oneColor(0x0000FF));
    return 0;
}

int library(int argc, char** argv, const std::string& folder, const std::string& name) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    {
        LUTBrowser browser;
        browser.setDataMin(0);
        browser.setDataMax(100);
        browser.loadLibrary(folder);
        const auto* files = browser.findChild<FileList*>("FileList");
        std::cout << "rows: " << (files ? files->count() : -1) << '\n';
        for (const ColorBarRow* row : browser.rows())
            for (const QString& note : row->notes())
                std::cout << "note: " << note.toStdString() << '\n';
    }
    const std::string path = LutLibrary::folderOf(folder) + "/" + name;
    const auto chooser = [&path](const FileDialogRequest&) { return std::optional(path); };
    const LutFile::SaveResult result = LutLibrary::saveAs(chooser, folder, kRamp, 0);
    std::cout << "result: " << resultName(result) << '\n';
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    setMessageResponder([](const MessageRequest& request) {
        std::cout << "message: " << request.text << '\n';
        return request.buttons == MessageButtons::YesNo ||
                       request.buttons == MessageButtons::YesNoCancel
                   ? MessageAnswer::Yes
                   : MessageAnswer::Ok;
    });
    setProgramExitHandler([](int code) { std::cout << "exit: " << code << '\n'; });
    const std::string command = argc > 2 ? argv[1] : "";
    if (command == "answer" && argc == 3)
        return answer(argv[2]);
    if (command == "save" && argc == 3) {
        const LutFile::SaveResult result = LutFile::LutSaveAs(argv[2], kRamp, 0, '.');
        std::cout << "result: " << resultName(result) << '\n';
        return 0;
    }
    if (command == "library" && argc == 4)
        return library(argc, argv, argv[2], argv[3]);
    std::cerr << "usage: huebase_failure_driver answer FOLDER | save PATH | library FOLDER NAME\n";
    return 2;
}

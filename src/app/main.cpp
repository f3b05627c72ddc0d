#include "app/app_options.h"
#include "app/first_paint_stamp.h"
#include "app/process_exit.h"
#include "app/qt_message_responder.h"
#include "host/automation_notifier.h"
#include "host/command_notifier.h"
#include "host/mi_lut.h"
#include "util/choice_list_accessible.h"
#include "util/guarded_application.h"
#include "util/messages.h"
#include "util/program_exit.h"

#ifdef _WIN32
#include "host/com_automation.h"
#else
#include "host/unavailable_automation.h"
#endif

#include <QApplication>
#include <QDir>

#include <cstdio>
#include <iostream>
#include <optional>

namespace {

// The folder of the exchange files and the library: --folder, or the
// executable's own folder.
std::string programFolder(const huebase::AppOptions& options) {
    const QString folder = options.folder.empty()
                               ? QApplication::applicationDirPath()
                               : QDir(QString::fromStdString(options.folder)).absolutePath();
    return QDir::toNativeSeparators(folder).toStdString();
}

} // namespace

int main(int argc, char* argv[]) {
    std::vector<std::string> args(argv + 1, argv + argc);
    std::string error;
    const auto options = huebase::AppOptions::parse(args, error);
    if (!options) {
        std::cerr << "huebase: " << error << "\n\n" << huebase::AppOptions::usage();
        return 2;
    }
    if (options->help) {
        std::cout << huebase::AppOptions::usage();
        return 0;
    }
    if (options->version) {
        std::cout << "Huebase " << HUEBASE_VERSION << '\n';
        return 0;
    }

    huebase::GuardedApplication app(argc, argv);
    QApplication::setApplicationName("Huebase");
    QApplication::setApplicationDisplayName("Huebase");
    QApplication::setApplicationVersion(HUEBASE_VERSION);
    huebase::setMessageResponder(huebase::showQtMessageBox);
    huebase::setProgramExitHandler(huebase::endProcess);
    huebase::ChoiceListAccessible::install();

    // Start-up measurements ask for the time the editor is first on screen.
    std::optional<huebase::FirstPaintStamp> paintStamp;
    if (qEnvironmentVariableIsSet("HUEBASE_PAINT_STAMP")) {
        paintStamp.emplace("lut", stderr);
        app.installEventFilter(&*paintStamp);
    }

#ifdef _WIN32
    huebase::ComAutomation automation;
#else
    huebase::UnavailableAutomation automation;
#endif
    huebase::AutomationNotifier automationNotifier(automation);
    huebase::CommandNotifier commandNotifier(options->notifyCommand);
    huebase::HostNotifier& notifier = options->notifyCommand.empty()
                                          ? static_cast<huebase::HostNotifier&>(automationNotifier)
                                          : commandNotifier;

    // Everything up to the editor happens before the startup window shows:
    // without "col.tmp" the program has ended by then and shown nothing.
    huebase::MILut window(programFolder(*options), notifier);
    window.Form_Load();
    window.show();
    return QApplication::exec();
}

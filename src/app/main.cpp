#include "app/app_options.h"
#include "app/qt_message_responder.h"
#include "util/messages.h"
#include "util/program_exit.h"

#include <QApplication>
#include <QDir>
#include <QLabel>

#include <cstdio>
#include <iostream>

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

    QApplication app(argc, argv);
    QApplication::setApplicationName("Huebase");
    QApplication::setApplicationDisplayName("Huebase");
    QApplication::setApplicationVersion(HUEBASE_VERSION);
    huebase::setMessageResponder(huebase::showQtMessageBox);
    huebase::setProgramExitHandler([](int code) {
        std::fflush(nullptr);
        std::exit(code);
    });

    const QString folder = options->folder.empty() ? QApplication::applicationDirPath()
                                                   : QDir(QString::fromStdString(options->folder))
                                                         .absolutePath();
    QLabel window(QString("<h2>Huebase</h2><p>Colour tables for gridded data.</p>"
                          "<p>Program folder: %1</p>")
                      .arg(folder.toHtmlEscaped()));
    window.setObjectName("MILut");
    window.setWindowTitle("Huebase");
    window.setMargin(24);
    window.show();
    return QApplication::exec();
}

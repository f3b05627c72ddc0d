#pragma once

#include "host/host_session.h"

#include <QWidget>

#include <string>

class QPushButton;

namespace huebase {

class ColorPicker;
class HostNotifier;
class LUTCtl;

// The startup window "MILut": owns the session with the host and the LUT
// control LUTCtl1 through which the user defines the colour table. At start
// it hands the values the host exported to the control and opens the editor;
// when the control reports the table defined, the session colours the
// host's keys, rewrites "lut.tmp", tells the host and ends the program.
// Its own OK button ends the program without touching any file.
class MILut : public QWidget {
    Q_OBJECT
public:
    // programFolder: where the exchange files and the myLuts library are
    // (UTF-8); the notifier is not owned and must outlive the window.
    MILut(std::string programFolder, HostNotifier& notifier, QWidget* parent = nullptr);
    ~MILut() override;

    // Start: loadValues, then the editor, modally. Returns once the editor is
    // hidden without the program having ended (only where endProgram returns).
    void Form_Load();
    // The first half of the start, which shows nothing: without "col.tmp" the
    // program ends silently; otherwise the values are read and handed to
    // LUTCtl1 (SetValues(table, -1, 2)). A file the editor cannot take (a
    // text where a number belongs, ...) is shown as "Error: N. description"
    // and ends the program like an unreadable one. True when the control
    // holds the values.
    bool loadValues();

    LUTCtl& LUTCtl1() noexcept { return *LUTCtl1_; }
    HostSession& session() noexcept { return session_; }
    const std::string& programFolder() const noexcept { return folder_; }

private:
    void LUTCtl1_LUTDefined();
    void OK_Click();

    std::string folder_;
    HostSession session_;
    LUTCtl* LUTCtl1_ = nullptr;
    ColorPicker* ColorPicker_ = nullptr;
    QPushButton* OK_ = nullptr;
};

} // namespace huebase

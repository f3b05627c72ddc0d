#include "host/mi_lut.h"

#include "util/guarded.h"

#include "color/color_picker.h"
#include "core/lut_ctl.h"
#include "editor/lut_editor_window.h"
#include "host/graph_settings_link.h"
#include "host/library_link.h"
#include "util/messages.h"
#include "util/program_exit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace huebase {

MILut::MILut(std::string programFolder, HostNotifier& notifier, QWidget* parent)
    : QWidget(parent), folder_(std::move(programFolder)), session_(folder_, notifier) {
    setObjectName("MILut");
    setWindowTitle("Huebase");

    // The control owns its editor; the window knows where the library is.
    LUTCtl1_ = new LUTCtl(
        [this] {
            auto editor = std::make_unique<LutEditorWindow>();
            linkLibrary(*editor, folder_);
            linkGraphSettings(*editor, folder_);
            return editor;
        },
        this);
    LUTCtl1_->setObjectName("LUTCtl1");
    ColorPicker_ = new ColorPicker(this);
    ColorPicker_->setObjectName("ColorPicker");
    OK_ = new QPushButton("OK", this);
    OK_->setObjectName("OK");
    OK_->setAccessibleName("OK");
    OK_->setToolTip("End Huebase without answering the host");

    auto* caption = new QLabel("Colour table of the host's grid", this);
    auto* controls = new QHBoxLayout;
    controls->addWidget(LUTCtl1_);
    controls->addWidget(ColorPicker_);
    controls->addStretch(1);
    controls->addWidget(OK_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addLayout(controls);

    connect(LUTCtl1_, &LUTCtl::LUTDefined, this, &MILut::LUTCtl1_LUTDefined);
    connect(OK_, &QPushButton::clicked, this, guarded(this, &MILut::OK_Click));
}

MILut::~MILut() = default;

void MILut::Form_Load() {
    if (loadValues())
        LUTCtl1_->showCLut();
}

bool MILut::loadValues() {
    const ValuesTable* table = session_.start();
    if (!table)
        return false;
    try {
        LUTCtl1_->SetValues(table->data(), -1, 2);
    } catch (const VbError& error) {
        showMessage(error.message());
        endProgram(HostSession::kStartFailedExitCode);
        return false;
    }
    return true;
}

void MILut::LUTCtl1_LUTDefined() {
    session_.answerDefined(LUTCtl1_->colorTable());
}

void MILut::OK_Click() {
    endProgram(0);
}

} // namespace huebase

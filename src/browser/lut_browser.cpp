#include "browser/lut_browser.h"

#include "util/guarded.h"

#include "browser/color_bar_row.h"
#include "browser/file_list.h"
#include "browser/folder_list.h"
#include "browser/lut_library.h"
#include "util/form_on_top.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace huebase {

namespace {

// Narrower than this the rows scroll sideways rather than squeeze the bar.
constexpr int kMinRowsWidth = 480;

struct OptionText {
    const char* caption;
    const char* toolTip;
};

constexpr OptionText kOptions[3] = {
    {"Clip data to colors", "Data outside the LUT range, will be colorized as nodata"},
    {"Clip color to data", "Upper and lower colors will be extended to out range data"},
    {"Warp to Fit current data", "Colors applied as percentiles of the data"},
};

QLabel* caption(const QString& text, QWidget* buddy, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setBuddy(buddy);
    return label;
}

} // namespace

LUTBrowser::LUTBrowser(QWidget* parent) : QDialog(parent) {
    setObjectName("LUTBrowser");
    setWindowTitle("LUT Browser");
    setSizeGripEnabled(true);
    buildControls();
    MiscFiles::FormOnTop(*this, true);
}

LUTBrowser::~LUTBrowser() = default;

QSize LUTBrowser::sizeHint() const {
    return {980, 640};
}

void LUTBrowser::buildControls() {
    DriveList_ = new QComboBox(this);
    DriveList_->setObjectName("DriveList");
    DriveList_->setAccessibleName("Drive");
    for (const QFileInfo& drive : QDir::drives())
        DriveList_->addItem(QDir::toNativeSeparators(drive.absoluteFilePath()),
                            drive.absoluteFilePath());
    DirList_ = new FolderList(this);
    FileList_ = new FileList(this);

    auto* lists = new QVBoxLayout;
    lists->addWidget(caption("D&rive", DriveList_, this));
    lists->addWidget(DriveList_);
    lists->addWidget(caption("F&older", DirList_, this));
    lists->addWidget(DirList_, 2);
    lists->addWidget(caption("&Colour tables", FileList_, this));
    lists->addWidget(FileList_, 3);

    OptionFrame_ = new QGroupBox("Display / Apply Options", this);
    OptionFrame_->setObjectName("OptionFrame");
    auto* options = new QHBoxLayout(OptionFrame_);
    for (int i = 0; i < 3; ++i) {
        Option_[i] = new QRadioButton(kOptions[i].caption, OptionFrame_);
        Option_[i]->setObjectName(QString("Option%1").arg(i + 1));
        Option_[i]->setToolTip(kOptions[i].toolTip);
        options->addWidget(Option_[i]);
        connect(Option_[i], &QRadioButton::clicked, this,
                guarded(this, [this, i] { setFittingMode(static_cast<std::int16_t>(i)); }));
    }
    options->addStretch(1);
    Option_[0]->setChecked(true);

    RowColContainerSup_ = new QFrame(this);
    RowColContainerSup_->setObjectName("RowColContainerSup");
    static_cast<QFrame*>(RowColContainerSup_)->setFrameShape(QFrame::StyledPanel);
    RowColContainerSup_->setBackgroundRole(QPalette::Base);
    RowColContainerSup_->setAutoFillBackground(true);
    RowColContainerSup_->setMinimumSize(200, 120);
    RowColContainerSup_->installEventFilter(this);
    RowColContainer_ = new QWidget(RowColContainerSup_);
    RowColContainer_->setObjectName("RowColContainer");
    emptyNote_ = new QLabel("No colour tables (.lut files) in this folder", RowColContainerSup_);
    emptyNote_->setAlignment(Qt::AlignCenter);
    emptyNote_->setForegroundRole(QPalette::PlaceholderText);
    HScroll1_ = new QScrollBar(Qt::Horizontal, this);
    HScroll1_->setObjectName("HScroll1");
    VScroll1_ = new QScrollBar(Qt::Vertical, this);
    VScroll1_->setObjectName("VScroll1");
    HScroll1_->setAccessibleName("Scroll colour tables sideways");
    VScroll1_->setAccessibleName("Scroll colour tables");
    for (QScrollBar* bar : {HScroll1_, VScroll1_}) {
        connect(bar, &QScrollBar::valueChanged, this, guarded(this, [this] { scrollRows(); }));
        connect(bar, &QScrollBar::sliderMoved, this, guarded(this, [this] { scrollRows(); }));
    }

    auto* panel = new QGridLayout;
    panel->setSpacing(0);
    panel->addWidget(RowColContainerSup_, 0, 0);
    panel->addWidget(VScroll1_, 0, 1);
    panel->addWidget(HScroll1_, 1, 0);

    Cancel_ = new QPushButton("Cancel", this);
    Cancel_->setObjectName("Cancel");
    Cancel_->setAutoDefault(false);
    connect(Cancel_, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(Cancel_);

    auto* right = new QVBoxLayout;
    right->addWidget(OptionFrame_);
    right->addLayout(panel, 1);
    right->addLayout(buttons);

    auto* window = new QHBoxLayout(this);
    window->addLayout(lists, 0);
    window->addLayout(right, 1);
    DriveList_->setFixedWidth(220);
    DirList_->setFixedWidth(220);
    FileList_->setFixedWidth(220);
    setMinimumSize(720, 420);
    // Not the file list: focusing it would choose its first file.
    Option_[0]->setFocus();

    connect(DriveList_, &QComboBox::activated, this, guarded(this, &LUTBrowser::driveChosen));
    connect(DirList_, &FolderList::pathChanged, this, guarded(this, &LUTBrowser::folderChanged));
    connect(FileList_, &QListWidget::currentRowChanged, this,
            guarded(this, &LUTBrowser::fileChosen));
    layoutRows();
}

void LUTBrowser::setDataMin(float value) {
    dataMin_ = value;
    for (ColorBarRow* row : rows_)
        row->setDataMin(value);
}

void LUTBrowser::setDataMax(float value) {
    dataMax_ = value;
    for (ColorBarRow* row : rows_)
        row->setDataMax(value);
}

void LUTBrowser::loadLibrary(const std::string& programFolder) {
    LutLibrary::createFolder(programFolder);
    libraryPath_ = QString::fromStdString(LutLibrary::folderOf(programFolder));
    const QString absolute = QDir(libraryPath_).absolutePath();
    int drive = 0;
    for (int i = 0; i < DriveList_->count(); ++i)
        if (absolute.startsWith(DriveList_->itemData(i).toString(), Qt::CaseInsensitive))
            drive = i;
    DriveList_->setCurrentIndex(drive);
    mode_ = 0;
    Option_[0]->setChecked(true);
    DirList_->setPath(libraryPath_);
}

void LUTBrowser::driveChosen(int index) {
    DirList_->setPath(DriveList_->itemData(index).toString());
}

void LUTBrowser::folderChanged(const QString& path) {
    FileList_->setPath(path);
    clearRows();
    for (int row = 0; row < FileList_->count(); ++row)
        addRow(FileList_->filePath(row));
    VScroll1_->setValue(0);
    HScroll1_->setValue(0);
    layoutRows();
}

void LUTBrowser::fileChosen(int index) {
    if (index < 0)
        return;
    const QString path = FileList_->filePath(index);
    const auto found = std::find_if(rows_.begin(), rows_.end(),
                                    [&](ColorBarRow* row) { return row->FilePath() == path; });
    ColorBarRow* row = found != rows_.end() ? *found : addRow(QString());
    std::erase(rows_, row);
    rows_.insert(rows_.begin(), row);
    if (chosen_ && chosen_ != row)
        chosen_->setQuiet(true);
    chosen_ = row;
    row->setQuiet(false);
    // The file is read and fitted once, in the window's mode: a row that an
    // earlier refusal left in mode 0 takes the mode again with its file.
    if (row->ApplyOptions() != mode_ && row->FilePath() == path)
        row->setApplyOptions(mode_);
    else
        row->setFilePath(path);
    VScroll1_->setValue(0);
    layoutRows();
}

ColorBarRow* LUTBrowser::addRow(const QString& path) {
    auto* row = new ColorBarRow(RowColContainer_);
    row->setQuiet(true);
    row->setDataMin(dataMin_);
    row->setDataMax(dataMax_);
    row->setApplyOptions(mode_); // no file yet: nothing is read
    if (!path.isEmpty())
        row->setFilePath(path);
    connect(row, &ColorBarRow::Selected, this,
            [this](const LutTable& table, ColorValue noDataColor) {
                emit Selected(table, noDataColor);
                accept();
            });
    row->show();
    rows_.push_back(row);
    return row;
}

void LUTBrowser::clearRows() {
    chosen_ = nullptr;
    for (ColorBarRow* row : rows_)
        delete row;
    rows_.clear();
}

void LUTBrowser::setFittingMode(std::int16_t mode) {
    mode_ = mode;
    if (mode >= 0 && mode < 3 && !Option_[mode]->isChecked())
        Option_[mode]->setChecked(true);
    for (QWidget* control : findChildren<QWidget*>())
        if (control->metaObject()->indexOfProperty("ApplyOptions") >= 0)
            control->setProperty("ApplyOptions", int{mode});
    layoutRows();
}

void LUTBrowser::layoutRows() {
    if (rowHeight_ == 0 && !rows_.empty())
        rowHeight_ = rows_.front()->sizeHint().height();
    const int width = rows_.empty() ? RowColContainerSup_->width()
                                    : std::max(RowColContainerSup_->width(), kMinRowsWidth);
    const QPalette& colors = palette();
    const QColor base = colors.color(QPalette::Base);
    const QColor highlight = colors.color(QPalette::Highlight);
    // A light tint of the highlight marks the chosen row.
    const QColor chosenColor = QColor::fromRgbF(0.84f * base.redF() + 0.16f * highlight.redF(),
                                                0.84f * base.greenF() + 0.16f * highlight.greenF(),
                                                0.84f * base.blueF() + 0.16f * highlight.blueF());
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        ColorBarRow* row = rows_[i];
        row->setGeometry(0, static_cast<int>(i) * rowHeight_, width, rowHeight_);
        QPalette look = row->palette();
        look.setColor(QPalette::Window, row == chosen_ ? chosenColor
                                        : i % 2        ? colors.color(QPalette::AlternateBase)
                                                       : base);
        row->setPalette(look);
        // Otherwise the rows would take the panel's Base role.
        row->setBackgroundRole(QPalette::Window);
        row->setAutoFillBackground(true);
    }
    RowColContainer_->resize(width, static_cast<int>(rows_.size()) * rowHeight_);
    emptyNote_->setGeometry(RowColContainerSup_->rect());
    emptyNote_->setVisible(rows_.empty() && !libraryPath_.isEmpty());
    refitScrollBars();
}

void LUTBrowser::refitScrollBars() {
    const QSize view = RowColContainerSup_->size();
    const QSize all = RowColContainer_->size();
    VScroll1_->setRange(0, std::max(0, all.height() - view.height()));
    VScroll1_->setSingleStep(std::max(1, rowHeight_));
    VScroll1_->setPageStep(std::max(1, view.height()));
    VScroll1_->setEnabled(VScroll1_->maximum() > 0);
    HScroll1_->setRange(0, std::max(0, all.width() - view.width()));
    HScroll1_->setSingleStep(20);
    HScroll1_->setPageStep(std::max(1, view.width()));
    HScroll1_->setVisible(HScroll1_->maximum() > 0);
    scrollRows();
}

void LUTBrowser::scrollRows() {
    RowColContainer_->move(-HScroll1_->value(), -VScroll1_->value());
}

bool LUTBrowser::eventFilter(QObject* watched, QEvent* event) {
    if (watched == RowColContainerSup_) {
        if (event->type() == QEvent::Resize) {
            guard(this, [this] { layoutRows(); });
        } else if (event->type() == QEvent::Wheel) {
            const auto* wheel = static_cast<QWheelEvent*>(event);
            VScroll1_->setValue(VScroll1_->value() -
                                wheel->angleDelta().y() * VScroll1_->singleStep() / 120);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace huebase

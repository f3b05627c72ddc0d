#include "color/color_ref_dialog.h"

#include "util/guarded.h"

#include "color/color_chooser.h"
#include "color/color_patch.h"
#include "color/color_picker.h"
#include "color/palette_field.h"
#include "color/qt_color.h"
#include "color/qt_screen_pixels.h"
#include "util/form_on_top.h"
#include "util/messages.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <exception>

namespace huebase {

namespace {
constexpr int kPickInterval = 50;
constexpr int k5by5Interval = 100;

struct BoxInfo {
    const char* letter;
    const char* name; // accessible name
    const char* tooltip;
};

constexpr BoxInfo kBoxInfo[] = {
    {"R", "Red", "Red value for above color"},
    {"G", "Green", "Green value for above color"},
    {"B", "Blue", "Blue value for above color"},
    {"H", "Hue", "Hue (Tint) value for above color"},
    {"S", "Saturation", "SAturation (Richness) value for above color"},
    {"L", "Luminance", "Luminence (Brightness) value for above color"},
};

const char* const kStripCaptions[] = {"-20", "-15", "-10", "-5", "+5", "+10", "+15", "+20"};

QImage makePaletteImage(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixelColor(x, y, toQColor(paletteColorAt(x, y, width, height)));
    return image;
}

QIcon makeDialogIcon() {
    constexpr int side = 32;
    QPixmap pixmap = QPixmap::fromImage(makePaletteImage(side, side));
    QPainter painter(&pixmap);
    painter.setPen(QColor(60, 60, 60));
    painter.drawRect(0, 0, side - 1, side - 1);
    return QIcon(pixmap);
}

QFont namedFont(const char* family, QFont::StyleHint hint) {
    QFont font(family);
    font.setStyleHint(hint);
    return font;
}
} // namespace

frmColorRef::frmColorRef(QWidget* parent, std::unique_ptr<ScreenPixels> screen)
    : QDialog(parent), screen_(screen ? std::move(screen) : std::make_unique<QtScreenPixels>()),
      sampler_(*screen_) {
    setObjectName("frmColorRef");
    setWindowTitle("Color Pick");
    setWindowIcon(makeDialogIcon());
    buildControls();
    MiscFiles::FormOnTop(*this, true);
}

frmColorRef::~frmColorRef() = default;

void frmColorRef::buildControls() {
    picColor_ = new ColorPatch(this);
    picColor_->setObjectName("picColor");
    picColor_->setToolTip("Current color");
    picColor_->setAccessibleName("Current colour");
    picColor_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    picColor_->setMinimumHeight(64);
    connect(picColor_, &ColorPatch::pressed, this, guarded(this, [this] { picColor_MouseDown(); }));

    cmdPick_ = new QPushButton("Pick", this);
    cmdPick_->setObjectName("cmdPick");
    cmdPick_->setToolTip("Pick  from Screen");
    cmdPick_->setAccessibleName("Pick from screen");
    connect(cmdPick_, &QPushButton::clicked, this, guarded(this, [this] { cmdPick_Click(); }));

    cmd5by5_ = new QPushButton("5x5", this);
    cmd5by5_->setObjectName("cmd5by5");
    cmd5by5_->setToolTip("Take a 5x5 average sample from the screen");
    cmd5by5_->setAccessibleName("Average 5x5 from screen");
    connect(cmd5by5_, &QPushButton::clicked, this, guarded(this, [this] { cmd5by5_Click(); }));

    cmdChange_ = new QPushButton("System", this);
    cmdChange_->setObjectName("cmdChange");
    cmdChange_->setToolTip("Windoze color picker");
    cmdChange_->setAccessibleName("System colour chooser");
    cmdChange_->setIcon(windowIcon());
    connect(cmdChange_, &QPushButton::clicked, this, guarded(this, [this] { cmdChange_Click(); }));

    auto* ok = new QPushButton("OK", this);
    ok->setObjectName("OK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, guarded(this, [this] { OK_Click(); }));
    auto* cancel = new QPushButton("Cancel", this);
    cancel->setObjectName("Cancel");
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    cmdAbout_ = new QToolButton(this);
    cmdAbout_->setObjectName("cmdAbout");
    cmdAbout_->setText("?");
    cmdAbout_->setToolTip("About");
    cmdAbout_->setAccessibleName("About");
    connect(cmdAbout_, &QToolButton::clicked, this, guarded(this, [this] { showAbout(); }));

    tmrPick_ = new QTimer(this);
    tmrPick_->setObjectName("tmrPick");
    tmrPick_->setInterval(0);
    connect(tmrPick_, &QTimer::timeout, this,
            guarded(
                this, [this] { tmrPick_Timer(); }, Reporting::OncePerCause));
    tmr5by5_ = new QTimer(this);
    tmr5by5_->setObjectName("tmr5by5");
    tmr5by5_->setInterval(0);
    connect(tmr5by5_, &QTimer::timeout, this,
            guarded(
                this, [this] { tmr5by5_Timer(); }, Reporting::OncePerCause));

    auto* pickButtons = new QHBoxLayout;
    pickButtons->addWidget(cmdPick_);
    pickButtons->addWidget(cmd5by5_);
    pickButtons->addWidget(cmdChange_);

    auto* right = new QVBoxLayout;
    right->addWidget(picColor_);
    right->addLayout(buildValueColumns(), 1);
    right->addLayout(pickButtons);

    auto* left = new QVBoxLayout;
    left->addWidget(buildPaletteArea());
    left->addLayout(buildStrip());
    left->addStretch(1);

    auto* top = new QHBoxLayout;
    top->addLayout(left);
    top->addSpacing(8);
    top->addLayout(right, 1);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(cmdAbout_);
    bottom->addStretch(1);
    bottom->addWidget(ok);
    bottom->addWidget(cancel);

    auto* frame = new QVBoxLayout(this);
    frame->addLayout(top);
    frame->addSpacing(4);
    frame->addLayout(bottom);
    frame->setSizeConstraint(QLayout::SetFixedSize);

    for (ValueBox& box : boxes_)
        box.edit->installEventFilter(this);
}

QWidget* frmColorRef::buildPaletteArea() {
    pCol_ = new QFrame(this);
    pCol_->setObjectName("pCol");
    pCol_->setFrameStyle(QFrame::Box | QFrame::Plain);
    pCol_->setLineWidth(1);
    const int border = pCol_->frameWidth();
    constexpr int width = ColorDialogModel::kPaletteWidth;
    constexpr int height = ColorDialogModel::kPaletteHeight;
    const QRect inner(border, border, width, height);
    pCol_->setFixedSize(width + 2 * border, height + 2 * border);

    Picture1_ = new ColorPatch(pCol_);
    Picture1_->setObjectName("Picture1");
    Picture1_->setToolTip("pick a color");
    Picture1_->setAccessibleName("Palette");
    Picture1_->setPixmap(QPixmap::fromImage(makePaletteImage(width, height)));
    Picture1_->setGeometry(inner);
    Picture1_->setCursor(Qt::CrossCursor);
    connect(Picture1_, &ColorPatch::pressed, this,
            guarded(this, [this](QPoint pos) { display(model_.choosePalette(pos.x(), pos.y())); }));

    // The enlargement covers the palette while the 5x5 sampling runs; the
    // palette cannot be clicked then anyway, as the swatch holds the mouse.
    pic5x5_ = new QFrame(pCol_);
    pic5x5_->setObjectName("pic5x5");
    pic5x5_->setGeometry(inner);
    pic5x5_->setAutoFillBackground(true);
    QPalette gap = pic5x5_->palette();
    gap.setColor(QPalette::Window, QColor(40, 40, 40));
    pic5x5_->setPalette(gap);
    auto* cells = new QGridLayout(pic5x5_);
    cells->setContentsMargins(1, 1, 1, 1);
    cells->setSpacing(1);
    for (int k = 0; k < kBlockCells; ++k) {
        auto* cell = new ColorPatch(pic5x5_);
        cell->setObjectName("picPoint");
        cell->setProperty("Index", k);
        cell->setToolTip("Enlargement of the 5x5 area under the pointer.  If you are reading "
                         "this, you are getting color feedback!");
        cell->setAccessibleName(QString("Sample %1").arg(k));
        if (k == kBlockCentreCell)
            cell->setFrameStyle(QFrame::Box | QFrame::Plain); // the pixel under the pointer
        cells->addWidget(cell, k / kBlockSide, k % kBlockSide);
        picPoint_[k] = cell;
    }
    pic5x5_->hide();
    return pCol_;
}

QLayout* frmColorRef::buildValueColumns() {
    const QFont mono = namedFont("Courier New", QFont::TypeWriter);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(3);
    constexpr int firstLevel = static_cast<int>(ColorBox::Hue);
    for (int i = 0; i < kColorBoxCount; ++i) {
        const auto id = static_cast<ColorBox>(i);
        const BoxInfo& info = kBoxInfo[i];
        ValueBox& box = boxes_[i];
        const int column = i < firstLevel ? i : i + 1; // a gap between the two groups

        auto* label = new QLabel(info.letter, this);
        label->setObjectName(QString("lbl") + info.letter);
        label->setFont(mono);
        label->setAlignment(Qt::AlignCenter);

        box.edit = new QLineEdit(this);
        box.edit->setObjectName(QString("txt") + info.letter);
        box.edit->setFont(mono);
        box.edit->setToolTip(info.tooltip);
        box.edit->setAccessibleName(info.name);
        box.edit->setAlignment(Qt::AlignCenter);
        box.edit->setFixedWidth(box.edit->fontMetrics().horizontalAdvance("0000") + 12);
        label->setBuddy(box.edit);

        box.slider = new QScrollBar(Qt::Vertical, this);
        box.slider->setObjectName(QString("v") + info.letter);
        box.slider->setAccessibleName(QString(info.name) + " slider");
        box.slider->setRange(0, boxMaximum(boxScale(id)));
        box.slider->setPageStep(16);
        box.slider->setMinimumHeight(110);

        grid->addWidget(label, 0, column, Qt::AlignHCenter);
        grid->addWidget(box.edit, 1, column, Qt::AlignHCenter);
        grid->addWidget(box.slider, 2, column, Qt::AlignHCenter);

        connect(box.edit, &QLineEdit::textChanged, this,
                guarded(this, [this, id] { boxChanged(id); }));
        connect(box.slider, &QScrollBar::valueChanged, this,
                guarded(this, [this, id](int value) { sliderChanged(id, value); }));
    }
    grid->setColumnMinimumWidth(firstLevel, 6);
    grid->setRowStretch(2, 1);
    return grid;
}

QLayout* frmColorRef::buildStrip() {
    const QFont arial = namedFont("Arial", QFont::SansSerif);
    auto* strip = new QHBoxLayout;
    strip->setSpacing(2);
    for (int i = 0; i < kStripSteps; ++i) {
        auto* step = new ColorPatch(this);
        step->setObjectName("lblAdj");
        step->setProperty("Index", i);
        step->setText(kStripCaptions[i]);
        step->setFont(arial);
        step->setToolTip("Click to adjust brightness");
        step->setAccessibleName(QString(i < 4 ? "Darker %1 percent" : "Lighter %1 percent")
                                    .arg(5 * (i < 4 ? 4 - i : i - 3)));
        step->setFocusPolicy(Qt::TabFocus);
        step->setMinimumHeight(26);
        connect(step, &ColorPatch::pressed, this,
                guarded(this, [this, i] { display(model_.chooseStep(i)); }));
        strip->addWidget(step, 1);
        lblAdj_[i] = step;
    }
    return strip;
}

void frmColorRef::setCP(ColorPicker* picker) {
    TargetPicker_ = picker;
}

ColorValue frmColorRef::color() const {
    return model_.color();
}

void frmColorRef::setColor(ColorValue color) {
    model_.setColor(color);
    picColor_->setColor(model_.color());
}

void frmColorRef::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // One instance serves every opening: without this the focus would come
    // back wherever the last opening left it.
    boxes_[0].edit->setFocus(Qt::ActiveWindowFocusReason);
    guard(this, [this] { RefreshDisplay(); });
}

void frmColorRef::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        guard(this, [this] { RefreshDisplay(); });
}

bool frmColorRef::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        if (auto* edit = qobject_cast<QLineEdit*>(watched))
            // After the click that gave the focus has placed the cursor.
            QTimer::singleShot(0, edit, &QLineEdit::selectAll);
    }
    return QDialog::eventFilter(watched, event);
}

void frmColorRef::done(int result) {
    if (model_.picking())
        endPicking();
    QDialog::done(result);
}

void frmColorRef::RefreshDisplay() {
    display(model_.refresh());
}

// The controls report every change of their value, also the ones made here;
// their signals are blocked while they take the model's state, which is no input.
void frmColorRef::display(const ColorDialogChange& change) {
    picColor_->setColor(model_.color());
    for (int i = 0; i < kColorBoxCount; ++i) {
        const auto id = static_cast<ColorBox>(i);
        ValueBox& box = boxes_[i];
        if (change.written.test(i)) {
            const QSignalBlocker quiet(box.edit);
            box.edit->setText(QString::fromStdString(model_.text(id)));
            if (const auto shade = model_.shade(id)) {
                QPalette pal = box.edit->palette();
                pal.setColor(QPalette::Base, toQColor(shade->background));
                pal.setColor(QPalette::Text, toQColor(shade->text));
                box.edit->setPalette(pal);
            }
        }
        const QSignalBlocker quiet(box.slider);
        box.slider->setValue(model_.slider(id));
    }
    if (change.strip) {
        for (int i = 0; i < kStripSteps; ++i) {
            const StripStep& step = model_.strip()[i];
            lblAdj_[i]->setColor(step.color);
            lblAdj_[i]->setTextColor(step.text);
        }
    }
}

void frmColorRef::boxChanged(ColorBox id) {
    QLineEdit& edit = *boxes_[static_cast<int>(id)].edit;
    const ColorDialogChange change = model_.type(id, edit.text().toStdString());
    display(change);
    if (change.selectAll)
        edit.selectAll();
}

void frmColorRef::sliderChanged(ColorBox id, int value) {
    const ColorDialogChange change = model_.slide(id, value);
    display(change);
    if (change.selectAll)
        boxes_[static_cast<int>(id)].edit->selectAll();
}

void frmColorRef::cmdPick_Click() {
    picColor_->grabMouse(Qt::CrossCursor);
    tmrPick_->start(kPickInterval);
    display(model_.startPixelPick());
}

void frmColorRef::cmd5by5_Click() {
    picColor_->grabMouse(Qt::CrossCursor);
    tmr5by5_->start(k5by5Interval);
    model_.startBlockPick();
    pic5x5_->show();
    pic5x5_->raise();
}

// The swatch holds the mouse while a mode runs, so a press anywhere on the
// screen arrives here and ends it.
void frmColorRef::picColor_MouseDown() {
    if (model_.picking())
        endPicking();
}

void frmColorRef::endPicking() {
    picColor_->releaseMouse();
    tmrPick_->stop();
    tmrPick_->setInterval(0);
    tmr5by5_->stop();
    tmr5by5_->setInterval(0);
    pic5x5_->hide();
    display(model_.endPicking());
}

void frmColorRef::tmrPick_Timer() {
    if (const auto sample = sampler_.pickTick())
        display(model_.takePixel(*sample));
}

void frmColorRef::tmr5by5_Timer() {
    const auto block = sampler_.blockTick();
    if (!block)
        return;
    for (int k = 0; k < kBlockCells; ++k)
        picPoint_[k]->setColor((*block)[k]);
    display(model_.takeBlock(*block));
}

// The system chooser starts from its own previous result (black the first
// time), not from the current colour.
void frmColorRef::cmdChange_Click() {
    try {
        display(model_.takeSystemChoice(
            modColorDialog::ShowColorChooser(this, true, model_.lastChoice().Color)));
    } catch (const std::exception&) {
        // A failing chooser leaves the current colour as it was.
    }
}

void frmColorRef::showAbout() {
    showMessage("Huebase colour picker\n\n"
                "Choose a colour by its red, green and blue values or by hue, saturation "
                "and luminance, from the palette or the brightness steps, from anywhere on "
                "the screen (one pixel or the average of 5 x 5), or with the system's own "
                "colour chooser.\n\n"
                "Written for Huebase by its developers.",
                "About", MessageIcon::Information);
}

void frmColorRef::OK_Click() {
    if (TargetPicker_)
        TargetPicker_->setColor(color());
    accept();
}

} // namespace huebase

#include "color/color_ref_dialog.h"

#include "util/guarded.h"

#include "color/color_chooser.h"
#include "color/color_patch.h"
#include "color/color_picker.h"
#include "color/hsl.h"
#include "color/palette_field.h"
#include "color/qt_color.h"
#include "color/qt_screen_pixels.h"
#include "util/form_on_top.h"
#include "util/messages.h"
#include "util/vb_numeric.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <exception>

namespace huebase {

namespace {
constexpr int kPickInterval = 50;
constexpr int k5by5Interval = 100;
constexpr int kPaletteWidth = 254;
constexpr int kPaletteHeight = 215; // odd, so that the middle row is luminance 120
constexpr ColorValue kWhite = 0xFFFFFF;
constexpr ColorValue kBlack = 0;
// The green box turns its text black above this value; the other boxes keep white.
constexpr int kGreenTextThreshold = 172;

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
      sampler_(*screen_), paletteImage_(makePaletteImage(kPaletteWidth, kPaletteHeight)) {
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
    const QRect inner(border, border, kPaletteWidth, kPaletteHeight);
    pCol_->setFixedSize(kPaletteWidth + 2 * border, kPaletteHeight + 2 * border);

    Picture1_ = new ColorPatch(pCol_);
    Picture1_->setObjectName("Picture1");
    Picture1_->setToolTip("pick a color");
    Picture1_->setAccessibleName("Palette");
    Picture1_->setPixmap(QPixmap::fromImage(paletteImage_));
    Picture1_->setGeometry(inner);
    Picture1_->setCursor(Qt::CrossCursor);
    connect(Picture1_, &ColorPatch::pressed, this,
            guarded(this, [this](QPoint pos) { paletteClicked(pos); }));

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
    for (int i = 0; i < BoxCount; ++i) {
        const BoxInfo& info = kBoxInfo[i];
        ValueBox& box = boxes_[i];
        box.scale = i < BoxH ? BoxScale::Component : i == BoxH ? BoxScale::Hue : BoxScale::Level;
        box.editing = i == BoxH   ? &EditingHue_
                      : i == BoxS ? &EditingSat_
                      : i == BoxL ? &EditingLum_
                                  : nullptr;
        const int column = i < BoxH ? i : i + 1; // a gap between the two groups

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
        box.slider->setAccessibleName(info.name);
        box.slider->setRange(0, boxMaximum(box.scale));
        box.slider->setPageStep(16);
        box.slider->setMinimumHeight(110);

        grid->addWidget(label, 0, column, Qt::AlignHCenter);
        grid->addWidget(box.edit, 1, column, Qt::AlignHCenter);
        grid->addWidget(box.slider, 2, column, Qt::AlignHCenter);

        const Box id = static_cast<Box>(i);
        connect(box.edit, &QLineEdit::textChanged, this,
                guarded(this, [this, id] { boxChanged(id); }));
        connect(box.slider, &QScrollBar::valueChanged, this,
                guarded(this, [this, id](int value) { sliderChanged(id, value); }));
    }
    grid->setColumnMinimumWidth(BoxH, 6);
    grid->setRowStretch(2, 1);
    return grid;
}

QLayout* frmColorRef::buildStrip() {
    const QFont arial = namedFont("Arial", QFont::SansSerif);
    auto* strip = new QHBoxLayout;
    strip->setSpacing(2);
    for (int i = 0; i < static_cast<int>(lblAdj_.size()); ++i) {
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
        connect(step, &ColorPatch::pressed, this, guarded(this, [this, step] {
                    setColor(step->color());
                    RefreshDisplay();
                }));
        strip->addWidget(step, 1);
        lblAdj_[i] = step;
    }
    return strip;
}

void frmColorRef::setCP(ColorPicker* picker) {
    TargetPicker_ = picker;
}

ColorValue frmColorRef::color() const {
    return picColor_->color();
}

// Only the colour bytes: a value with upper bits set could not be split into
// components by the displays.
void frmColorRef::setColor(ColorValue color) {
    picColor_->setColor(color & 0xFFFFFF);
}

void frmColorRef::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
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
    if (picking())
        endPicking();
    QDialog::done(result);
}

void frmColorRef::RefreshDisplay() {
    Updating_ = true;
    const ColorValue cur = color();
    const int r = RedOf(cur), g = GreenOf(cur), b = BlueOf(cur);
    showComponent(BoxR, r, composeColor(r, 0, 0), kWhite);
    showComponent(BoxG, g, composeColor(0, g, 0), g > kGreenTextThreshold ? kBlack : kWhite);
    showComponent(BoxB, b, composeColor(0, 0, b), kWhite);

    const HSLColor hsl = modHSL::RGBToHSL(cur);
    if (!EditingHue_)
        showInBox(BoxH, hsl.Hue);
    if (!EditingSat_)
        showInBox(BoxS, hsl.Saturation);
    if (!EditingLum_)
        showInBox(BoxL, hsl.Luminance);

    // The strip keeps its colours while the enlargement is shown.
    if (pic5x5_->isHidden()) {
        for (int i = 0; i < 8; ++i) {
            const ColorValue step = i < 4 ? modHSL::DarkenColor(cur, (4 - i) * 0.05f)
                                          : modHSL::LightenColor(cur, (i - 3) * 0.05f);
            lblAdj_[i]->setColor(step);
            lblAdj_[i]->setTextColor(modHSL::ContrastTextColor(step));
        }
    }
    Updating_ = false;
}

void frmColorRef::showInBox(Box box, int value) {
    ValueBox& b = boxes_[box];
    b.edit->setText(QString::number(value));
    setSliderQuietly(*b.slider, boxMaximum(b.scale) - value);
}

void frmColorRef::showComponent(Box box, int value, ColorValue background, ColorValue text) {
    showInBox(box, value);
    QLineEdit& edit = *boxes_[box].edit;
    QPalette pal = edit.palette();
    pal.setColor(QPalette::Base, toQColor(background));
    pal.setColor(QPalette::Text, toQColor(text));
    edit.setPalette(pal);
}

// Moves a slider without letting it write its box back: a value outside the
// slider's range (hue 240) would otherwise come back clamped.
void frmColorRef::setSliderQuietly(QScrollBar& slider, int value) {
    const bool wasSyncing = SyncingSlider_;
    SyncingSlider_ = true;
    slider.setValue(value);
    SyncingSlider_ = wasSyncing;
}

int frmColorRef::boxValue(Box box) const {
    return toInt32(leadingNumber(boxes_[box].edit->text().toStdString()));
}

void frmColorRef::boxChanged(Box id) {
    if (Updating_)
        return;
    ValueBox& box = boxes_[id];
    const QString typed = box.edit->text();
    const QString plain = QString::fromStdString(boxText(box.scale, typed.toStdString()));
    if (plain != typed)
        box.edit->setText(plain); // runs this handler once more, on the plain text

    if (box.editing == nullptr) {
        setColor(composeColor(boxValue(BoxR), boxValue(BoxG), boxValue(BoxB)));
        RefreshDisplay();
    } else {
        const HSLColor hsl{static_cast<std::int16_t>(boxValue(BoxH)),
                           static_cast<std::int16_t>(boxValue(BoxS)),
                           static_cast<std::int16_t>(boxValue(BoxL))};
        setColor(modHSL::HSLToRGB(hsl));
        // The edited box keeps the user's text: a reloaded hue may drift.
        *box.editing = true;
        RefreshDisplay();
        *box.editing = false;
    }

    const int maximum = boxMaximum(box.scale);
    if (!SyncingSlider_) {
        SyncingSlider_ = true;
        box.slider->setValue(maximum - boxValue(id));
        SyncingSlider_ = false;
    }
    // A clamped value is selected so that the next key replaces it.
    const QString now = box.edit->text();
    if (now == QString::number(maximum) || now == "0")
        box.edit->selectAll();
}

void frmColorRef::sliderChanged(Box id, int value) {
    if (SyncingSlider_)
        return;
    SyncingSlider_ = true;
    ValueBox& box = boxes_[id];
    box.edit->setText(QString::number(boxMaximum(box.scale) - value));
    SyncingSlider_ = false;
}

void frmColorRef::paletteClicked(QPoint pos) {
    if (!paletteImage_.rect().contains(pos))
        return;
    setColor(fromQColor(paletteImage_.pixelColor(pos)));
    RefreshDisplay();
}

void frmColorRef::cmdPick_Click() {
    picColor_->grabMouse(Qt::CrossCursor);
    tmrPick_->start(kPickInterval);
    RefreshDisplay();
}

void frmColorRef::cmd5by5_Click() {
    picColor_->grabMouse(Qt::CrossCursor);
    tmr5by5_->start(k5by5Interval);
    pic5x5_->show();
    pic5x5_->raise();
}

bool frmColorRef::picking() const {
    return tmrPick_->interval() >= 1 || tmr5by5_->interval() >= 1;
}

// The swatch holds the mouse while a mode runs, so a press anywhere on the
// screen arrives here and ends it.
void frmColorRef::picColor_MouseDown() {
    if (picking())
        endPicking();
}

void frmColorRef::endPicking() {
    picColor_->releaseMouse();
    tmrPick_->stop();
    tmrPick_->setInterval(0);
    tmr5by5_->stop();
    tmr5by5_->setInterval(0);
    pic5x5_->hide();
    RefreshDisplay();
}

void frmColorRef::tmrPick_Timer() {
    if (const auto sample = sampler_.pickTick()) {
        setColor(*sample);
        RefreshDisplay();
    }
}

void frmColorRef::tmr5by5_Timer() {
    const auto block = sampler_.blockTick();
    if (!block)
        return;
    // The cells hold the samples; the average is taken from what they show.
    SampleBlock shown{};
    for (int k = 0; k < kBlockCells; ++k) {
        picPoint_[k]->setColor((*block)[k]);
        shown[k] = picPoint_[k]->color();
    }
    setColor(averageColor(shown));
    RefreshDisplay();
}

// The system chooser starts from its own previous result (black the first
// time), not from the current colour.
void frmColorRef::cmdChange_Click() {
    try {
        LastChoice_ = modColorDialog::ShowColorChooser(this, true, LastChoice_.Color);
        if (!LastChoice_.Cancelled) {
            setColor(LastChoice_.Color);
            RefreshDisplay();
        }
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

#pragma once

#include "color/box_text.h"
#include "color/color_choice.h"
#include "color/screen_sampler.h"

#include <QDialog>
#include <QImage>
#include <QPointer>

#include <array>
#include <memory>

class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QTimer;
class QToolButton;

namespace huebase {

class ColorPatch;
class ColorPicker;

// The program's own colour chooser, "Color Pick": one current colour shown
// as a swatch, as red/green/blue 0..255 and hue/saturation/luminance 0..240
// (a box and an inverted slider each), with a palette, a strip of lighter and
// darker steps, picking from the screen (one pixel or a 5x5 average) and the
// system chooser. Every control carries its name as objectName. A swatch
// (ColorPicker) opens it modally; OK hands the colour to that swatch.
class frmColorRef : public QDialog {
    Q_OBJECT
public:
    // screen: where picking reads pixels; the real screen when null.
    explicit frmColorRef(QWidget* parent = nullptr, std::unique_ptr<ScreenPixels> screen = nullptr);
    ~frmColorRef() override;

    // The swatch that receives the colour on OK.
    void setCP(ColorPicker* picker);

    // The current colour (the fill of picColor). Setting it changes no other
    // display until the dialog is next activated, as its opener expects.
    ColorValue color() const;
    void setColor(ColorValue color);

    // The result of the last use of the system chooser, and where it starts next.
    const ColorChoice& LastChoice() const noexcept { return LastChoice_; }

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void done(int result) override;

private:
    enum Box { BoxR, BoxG, BoxB, BoxH, BoxS, BoxL, BoxCount };

    struct ValueBox {
        QLineEdit* edit = nullptr;
        QScrollBar* slider = nullptr;
        BoxScale scale = BoxScale::Component;
        bool* editing = nullptr; // the hue/saturation/luminance boxes' own flag
    };

    void buildControls();
    QWidget* buildPaletteArea();
    QLayout* buildValueColumns();
    QLayout* buildStrip();

    void RefreshDisplay();
    void showInBox(Box box, int value);
    void showComponent(Box box, int value, ColorValue background, ColorValue text);
    void setSliderQuietly(QScrollBar& slider, int value);
    int boxValue(Box box) const;
    void boxChanged(Box box);
    void sliderChanged(Box box, int value);

    void paletteClicked(QPoint pos);
    void cmdPick_Click();
    void cmd5by5_Click();
    void picColor_MouseDown();
    bool picking() const;
    void endPicking();
    void tmrPick_Timer();
    void tmr5by5_Timer();
    void cmdChange_Click();
    void showAbout();
    void OK_Click();

    std::unique_ptr<ScreenPixels> screen_;
    ScreenSampler sampler_;
    QPointer<ColorPicker> TargetPicker_;
    ColorChoice LastChoice_;
    bool Updating_ = false;
    bool EditingHue_ = false;
    bool EditingSat_ = false;
    bool EditingLum_ = false;
    bool SyncingSlider_ = false;

    QImage paletteImage_;
    std::array<ValueBox, BoxCount> boxes_{};
    ColorPatch* picColor_ = nullptr;
    QFrame* pCol_ = nullptr;
    ColorPatch* Picture1_ = nullptr;
    QFrame* pic5x5_ = nullptr;
    std::array<ColorPatch*, kBlockCells> picPoint_{};
    std::array<ColorPatch*, 8> lblAdj_{};
    QPushButton* cmdPick_ = nullptr;
    QPushButton* cmd5by5_ = nullptr;
    QPushButton* cmdChange_ = nullptr;
    QToolButton* cmdAbout_ = nullptr;
    QTimer* tmrPick_ = nullptr;
    QTimer* tmr5by5_ = nullptr;
};

} // namespace huebase

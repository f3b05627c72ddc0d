#pragma once

#include "color/color_dialog_model.h"
#include "color/screen_sampler.h"

#include <QDialog>
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
// (ColorPicker) opens it modally; OK hands the colour to that swatch. What
// the controls show lives in a ColorDialogModel: the dialog forwards each
// input to it and writes back what the model says changed.
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
    const ColorChoice& LastChoice() const noexcept { return model_.lastChoice(); }

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void done(int result) override;

private:
    struct ValueBox {
        QLineEdit* edit = nullptr;
        QScrollBar* slider = nullptr;
    };

    void buildControls();
    QWidget* buildPaletteArea();
    QLayout* buildValueColumns();
    QLayout* buildStrip();

    void RefreshDisplay();
    void display(const ColorDialogChange& change);
    void boxChanged(ColorBox box);
    void sliderChanged(ColorBox box, int value);

    void cmdPick_Click();
    void cmd5by5_Click();
    void picColor_MouseDown();
    void endPicking();
    void tmrPick_Timer();
    void tmr5by5_Timer();
    void cmdChange_Click();
    void showAbout();
    void OK_Click();

    std::unique_ptr<ScreenPixels> screen_;
    ScreenSampler sampler_;
    QPointer<ColorPicker> TargetPicker_;
    ColorDialogModel model_;

    std::array<ValueBox, kColorBoxCount> boxes_{};
    ColorPatch* picColor_ = nullptr;
    QFrame* pCol_ = nullptr;
    ColorPatch* Picture1_ = nullptr;
    QFrame* pic5x5_ = nullptr;
    std::array<ColorPatch*, kBlockCells> picPoint_{};
    std::array<ColorPatch*, kStripSteps> lblAdj_{};
    QPushButton* cmdPick_ = nullptr;
    QPushButton* cmd5by5_ = nullptr;
    QPushButton* cmdChange_ = nullptr;
    QToolButton* cmdAbout_ = nullptr;
    QTimer* tmrPick_ = nullptr;
    QTimer* tmr5by5_ = nullptr;
};

} // namespace huebase

#pragma once

#include "core/color_value.h"
#include "core/lut_node.h"

#include <QDialog>

#include <cstdint>
#include <string>
#include <vector>

class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QScrollBar;

namespace huebase {

class ColorBarRow;
class FileList;
class FolderList;

// The LUT browser, "LUT Browser": the library's drives, folders and .lut
// files on the left, the three fitting options above, and every .lut file of
// the current folder as a colour bar row fitted to the data range, in a
// scrolled panel. Clicking a file puts its row first; a row's SelectBtn
// raises Selected and closes the browser. The window stays on top.
//
// Every row but the one the user chose keeps its messages as a note (see
// ColorBarRow); the chosen row shows them, as the single row always did.
class LUTBrowser : public QDialog {
    Q_OBJECT
public:
    explicit LUTBrowser(QWidget* parent = nullptr);
    ~LUTBrowser() override;

    // The current data range, given to every row for fitting. Set before
    // loadLibrary; a later change reaches the rows at their next fit.
    float DataMin() const noexcept { return dataMin_; }
    float DataMax() const noexcept { return dataMax_; }
    void setDataMin(float value);
    void setDataMax(float value);

    // Opens the library "myLuts" in programFolder, creating it when missing,
    // with the drive list on its drive and the fitting mode 0.
    void loadLibrary(const std::string& programFolder);

    // The fitting mode the option buttons show.
    std::int16_t fittingMode() const noexcept { return mode_; }
    // What a click on Option1, Option2 or Option3 does: stores the mode and
    // sets ApplyOptions on every control of the window that has it.
    void setFittingMode(std::int16_t mode);

    // The rows (control array ColorTableRow1) in the order shown.
    const std::vector<ColorBarRow*>& rows() const noexcept { return rows_; }
    // The row the user chose in FileList, or none.
    ColorBarRow* chosenRow() const noexcept { return chosen_; }

    QSize sizeHint() const override;

signals:
    void Selected(const huebase::LutTable& table, huebase::ColorValue noDataColor);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void driveChosen(int index);
    void folderChanged(const QString& path);
    void fileChosen(int row);
    ColorBarRow* addRow(const QString& path);
    void clearRows();
    void layoutRows();
    void refitScrollBars();
    void scrollRows();

    float dataMin_ = 0.0f;
    float dataMax_ = 0.0f;
    std::int16_t mode_ = 0;
    QString libraryPath_;
    std::vector<ColorBarRow*> rows_;
    ColorBarRow* chosen_ = nullptr;
    int rowHeight_ = 0;

    QComboBox* DriveList_ = nullptr;
    FolderList* DirList_ = nullptr;
    FileList* FileList_ = nullptr;
    QGroupBox* OptionFrame_ = nullptr;
    QRadioButton* Option_[3] = {};
    QWidget* RowColContainerSup_ = nullptr;
    QWidget* RowColContainer_ = nullptr;
    QLabel* emptyNote_ = nullptr;
    QScrollBar* HScroll1_ = nullptr;
    QScrollBar* VScroll1_ = nullptr;
    QPushButton* Cancel_ = nullptr;
};

} // namespace huebase

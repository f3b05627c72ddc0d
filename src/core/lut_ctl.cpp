#include "core/lut_ctl.h"

#include "util/guarded.h"

#include "editor/lut_editor_window.h"

#include <QHBoxLayout>
#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>

namespace huebase {

namespace {
// A small picture of a ramp over a distribution, for the icon.
QIcon rampIcon() {
    QPixmap picture(32, 32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QLinearGradient ramp(0, 0, 32, 0);
    ramp.setColorAt(0.0, QColor(20, 60, 160));
    ramp.setColorAt(0.35, QColor(60, 170, 90));
    ramp.setColorAt(0.7, QColor(230, 200, 80));
    ramp.setColorAt(1.0, QColor(250, 250, 250));
    painter.fillRect(QRect(1, 22, 30, 9), ramp);
    painter.setPen(QPen(QColor(60, 60, 60), 2));
    const QPointF curve[] = {{2, 20}, {8, 12}, {14, 4}, {20, 10}, {26, 16}, {30, 19}};
    painter.drawPolyline(curve, 6);
    return QIcon(picture);
}
} // namespace

LUTCtl::LUTCtl(QWidget* parent) : QWidget(parent) {
    IconImg_ = new QToolButton(this);
    IconImg_->setObjectName("IconImg");
    IconImg_->setIcon(rampIcon());
    IconImg_->setIconSize({32, 32});
    IconImg_->setAutoRaise(true);
    IconImg_->setToolTip("Edit the colour table");
    IconImg_->setAccessibleName("Colour table editor");
    connect(IconImg_, &QToolButton::clicked, this, guarded(this, [this] { showCLut(); }));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(IconImg_);
}

LUTCtl::~LUTCtl() = default;

LutEditorWindow& LUTCtl::editor() {
    if (!editor_) {
        editor_ = std::make_unique<LutEditorWindow>();
        editor_->setOwner(this);
        editor_->DefaultLUT();
        editor_->setNoDataColor(clut_.noDataColor());
    }
    return *editor_;
}

std::vector<ValueColor> LUTCtl::ColorArray() {
    return clut_.ColorArray(editor().AltiArrays());
}

void LUTCtl::showCLut() {
    LutEditorWindow& window = editor();
    window.setModal(true);
    window.exec();
}

void LUTCtl::SetValues(const VariantRows& values, std::int32_t extra, std::uint8_t mode) {
    LutEditorWindow& window = editor();
    switch (mode) {
    case 0:
        window.InitFromStdArray(ValueLayouts::valueGrid(values), extra);
        break;
    case 1:
        window.InitFromStraightArray(ValueLayouts::straightValues(values), extra);
        break;
    case 2:
        window.InitFromOrderedArray(ValueLayouts::orderedRows(values), extra);
        break;
    default:
        break;
    }
    loaded_ = true;
}

void LUTCtl::SetValues(const std::vector<std::array<Variant, 2>>& values, std::int32_t extra,
                       std::uint8_t mode) {
    VariantRows rows;
    rows.reserve(values.size());
    for (const std::array<Variant, 2>& row : values)
        rows.emplace_back(row.begin(), row.end());
    SetValues(rows, extra, mode);
}

ColorValue LUTCtl::NoDataColor() {
    return editor().noDataColor();
}

void LUTCtl::OK_Clicked() {
    emit LUTDefined(clut_.noDataColor(), clut_.table());
}

void LUTCtl::receiveLutTable(const LutTable& table) {
    clut_.setTable(table, editor_ ? editor_->noDataColor() : clut_.noDataColor());
    emit LUTChanged(clut_.noDataColor(), clut_.table());
}

void LUTCtl::receiveNoDataColor(ColorValue color) {
    clut_.setNoDataColor(color);
}

void LUTCtl::resetLutTable() {
    if (editor_ && !clut_.table().empty())
        editor_->SetLutTable(clut_.table());
}

} // namespace huebase

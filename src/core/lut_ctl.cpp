#include "core/lut_ctl.h"

#include "util/guarded.h"

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

LUTCtl::LUTCtl(EditorFactory makeEditor, QWidget* parent)
    : QWidget(parent), makeEditor_(std::move(makeEditor)) {
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

LutEditor& LUTCtl::editor() {
    if (!editor_) {
        editor_ = makeEditor_();
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
    editor().showModal();
}

void LUTCtl::SetValues(const VariantRows& values, std::int32_t extra, std::uint8_t mode) {
    LutEditor& target = editor();
    switch (mode) {
    case 0:
        target.InitFromStdArray(values, extra);
        break;
    case 1:
        target.InitFromStraightArray(values, extra);
        break;
    case 2:
        target.InitFromOrderedArray(values, extra);
        break;
    default:
        break;
    }
    loaded_ = true;
}

void LUTCtl::SetValues(LutEditor::VariantPairs values, std::int32_t extra, std::uint8_t mode) {
    if (mode == 2) {
        editor().InitFromOrderedArray(values, extra);
        loaded_ = true;
        return;
    }
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

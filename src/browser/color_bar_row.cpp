#include "browser/color_bar_row.h"

#include "util/guarded.h"

#include "browser/row_color_bar.h"
#include "util/messages.h"
#include "util/vb_error.h"

#include <QFileInfo>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <string>
#include <utility>

namespace huebase {

namespace {

// A read-only, frameless text box: the row's texts are shown, not edited.
QLineEdit* textBox(const char* name, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setReadOnly(true);
    box->setFrame(false);
    box->setFocusPolicy(Qt::NoFocus);
    box->setAttribute(Qt::WA_TranslucentBackground);
    QPalette palette = box->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    box->setPalette(palette);
    return box;
}

// Keeps the messages raised while it lives as the row's notes, and shows
// them as well when the row is not quiet. A run-time error that no routine
// titled is titled with the caption of the row's window, as every error the
// program did not foresee is.
class MessageKeeper {
public:
    MessageKeeper(QStringList& kept, bool show, std::string caption)
        : previous_(setMessageResponder(
              [&kept, show, caption = std::move(caption), this](MessageRequest request) {
                  kept << QString::fromStdString(request.text);
                  if (request.title.empty() && request.text.starts_with("Error: "))
                      request.title = caption;
                  return show && previous_ ? previous_(request) : MessageAnswer::Ok;
              })) {}
    ~MessageKeeper() { setMessageResponder(std::move(previous_)); }
    MessageKeeper(const MessageKeeper&) = delete;
    MessageKeeper& operator=(const MessageKeeper&) = delete;

private:
    MessageResponder previous_;
};

// The note beside the name: short enough for the row, the whole texts go to
// its tooltip.
QString noteFor(const QStringList& notes) {
    if (notes.isEmpty())
        return {};
    if (notes.front().startsWith("Can't do that for"))
        return "Clip refused";
    if (notes.size() == 1)
        return notes.front();
    return QString("%1 (and %2 more)").arg(notes.front()).arg(notes.size() - 1);
}

} // namespace

ColorBarRow::ColorBarRow(QWidget* parent)
    : QWidget(parent), model_(font().toString().toStdString()) {
    setObjectName("ColorTableRow1");

    SelectBtn_ = new QPushButton("Select", this);
    SelectBtn_->setObjectName("SelectBtn");
    SelectBtn_->setToolTip("Use this colour table in the editor");
    SelectBtn_->setEnabled(false);
    // Enter in the browser must not pick whichever row was made first.
    SelectBtn_->setAutoDefault(false);
    ColorBar_ = new RowColorBar(model_, this);
    MinVal_ = textBox("MinVal", this);
    MaxVal_ = textBox("MaxVal", this);
    MinVal_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int boundWidth = fontMetrics().horizontalAdvance("-00000.00") + 8;
    MinVal_->setFixedWidth(boundWidth);
    MaxVal_->setFixedWidth(boundWidth);
    Pathtxt_ = textBox("Pathtxt", this);
    Pathtxt_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QPalette dim = Pathtxt_->palette();
    dim.setColor(QPalette::Text, palette().color(QPalette::PlaceholderText));
    Pathtxt_->setPalette(dim);
    Text1_ = textBox("Text1", this);
    QFont bold = Text1_->font();
    bold.setBold(true);
    Text1_->setFont(bold);
    note_ = new QLabel(this);
    note_->setObjectName("Note");
    QPalette warm = note_->palette();
    warm.setColor(QPalette::WindowText, QColor(0xB0, 0x50, 0x00));
    note_->setPalette(warm);
    Line1_ = new QFrame(this);
    Line1_->setObjectName("Line1");
    Line1_->setFrameShape(QFrame::HLine);
    Line1_->setFrameShadow(QFrame::Sunken);

    auto* title = new QHBoxLayout;
    title->setSpacing(8);
    title->addWidget(Text1_);
    title->addWidget(note_);
    title->addWidget(Pathtxt_, 1);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(8, 4, 8, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(2);
    grid->addLayout(title, 0, 1, 1, 3);
    grid->addWidget(SelectBtn_, 0, 0, 2, 1, Qt::AlignVCenter);
    grid->addWidget(MinVal_, 1, 1);
    grid->addWidget(ColorBar_, 1, 2);
    grid->addWidget(MaxVal_, 1, 3);
    grid->addWidget(Line1_, 2, 0, 1, 4);
    grid->setColumnStretch(2, 1);

    connect(SelectBtn_, &QPushButton::clicked, this, guarded(this, [this] { SelectBtn_Click(); }));
    Refresh();
}

ColorBarRow::~ColorBarRow() = default;

template <typename Change> void ColorBarRow::run(Change&& change) {
    notes_.clear();
    {
        const MessageKeeper keeper(notes_, !quiet_, window()->windowTitle().toStdString());
        change();
    }
    Refresh();
}

void ColorBarRow::setApplyOptions(std::int16_t mode) {
    run([&] { model_.setApplyOptions(mode); });
}

QString ColorBarRow::FilePath() const {
    return QString::fromStdString(model_.Pathtxt());
}

void ColorBarRow::setFilePath(const QString& path) {
    run([&] { model_.setFilePath(path.toStdString()); });
}

void ColorBarRow::setLut(LutRecords records) {
    run([&] { model_.setLut(std::move(records)); });
}

QString ColorBarRow::min() const {
    return QString::fromStdString(model_.min());
}

QString ColorBarRow::max() const {
    return QString::fromStdString(model_.max());
}

void ColorBarRow::setMin(const QString& text) {
    model_.setMin(text.toStdString());
    Refresh();
}

void ColorBarRow::setMax(const QString& text) {
    model_.setMax(text.toStdString());
    Refresh();
}

QString ColorBarRow::LutName() const {
    return QString::fromStdString(model_.LutName());
}

void ColorBarRow::setLutName(const QString& name) {
    model_.setLutName(name.toStdString());
    Refresh();
}

QString ColorBarRow::ToolTipText() const {
    return QString::fromStdString(model_.ToolTipText());
}

void ColorBarRow::setToolTipText(const QString& text) {
    model_.setToolTipText(text.toStdString());
    Refresh();
}

void ColorBarRow::ReadProperties(const PropertyBag& bag) {
    model_.ReadProperties(bag);
    Refresh();
}

void ColorBarRow::Refresh() {
    MinVal_->setText(min());
    MaxVal_->setText(max());
    MinVal_->setCursorPosition(0);
    MaxVal_->setCursorPosition(0);
    Pathtxt_->setText(FilePath());
    Pathtxt_->setToolTip(QString::fromStdString(model_.pathToolTip()));
    const QFileInfo file(QString(FilePath()).replace('\\', '/'));
    QString name = LutName();
    if (name.isEmpty() && !model_.Pathtxt().empty())
        name = file.completeBaseName();
    Text1_->setText(name);
    Text1_->setFixedWidth(Text1_->fontMetrics().horizontalAdvance(name) + 12);
    note_->setText(noteFor(notes_));
    note_->setToolTip(notes_.join('\n'));
    note_->setVisible(!notes_.isEmpty());
    setToolTip(ToolTipText());
    SelectBtn_->setEnabled(!model_.lut().empty());
    SelectBtn_->setAccessibleDescription(name);
    nameControls(file.fileName());
    ColorBar_->refresh();
}

// Every row has the same controls, so each is named after the row's file,
// which is unique in the folder the rows come from.
void ColorBarRow::nameControls(const QString& fileName) {
    const auto named = [&](QWidget* control, const char* part) {
        QString text = QString::fromLatin1(part);
        if (fileName.isEmpty())
            text[0] = text[0].toUpper();
        else
            text.prepend(fileName + ' ');
        control->setAccessibleName(text);
    };
    SelectBtn_->setAccessibleName(QString("Select %1").arg(fileName).trimmed());
    named(Text1_, "name");
    named(Pathtxt_, "path");
    named(MinVal_, "lower bound");
    named(MaxVal_, "upper bound");
    named(ColorBar_, "colour bar");
}

void ColorBarRow::SelectBtn_Click() {
    if (model_.lut().empty())
        return;
    LutSelection selection;
    try {
        selection = model_.Selected();
    } catch (const VbError& error) {
        showMessage(error.message(), {}, MessageIcon::Critical, MessageButtons::Ok);
        return;
    }
    emit Selected(selection.table, selection.noDataColor);
}

} // namespace huebase

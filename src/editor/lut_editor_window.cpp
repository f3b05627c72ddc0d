#include "editor/lut_editor_window.h"

#include "util/guarded.h"

#include "color/color_picker.h"
#include "editor/color_bar_view.h"
#include "editor/count_axis_view.h"
#include "editor/distribution_graph.h"
#include "editor/editor_undo.h"
#include "editor/graph_readout.h"
#include "editor/node_tab_strip.h"
#include "editor/node_value_prompt.h"
#include "editor/reporting_errors.h"
#include "editor/value_layouts.h"
#include "editor/value_rows_panel.h"
#include "util/form_on_top.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QShowEvent>
#include <QVBoxLayout>

namespace huebase {

namespace {
QPushButton* button(QWidget* parent, const char* name, const QString& caption) {
    auto* b = new QPushButton(caption, parent);
    b->setObjectName(name);
    b->setAccessibleName(QString(caption).remove('&'));
    // Enter in a value box takes the value; it never presses a button.
    b->setAutoDefault(false);
    return b;
}
} // namespace

LutEditorWindow::LutEditorWindow(QWidget* parent)
    : QDialog(parent), model_(std::make_unique<LutEditorModel>()) {
    setObjectName("lut");
    setWindowTitle("Color LUT");
    undo_ = std::make_unique<EditorUndo>(*model_, *this);
    buildControls();
    resize(980, 600);
    MiscFiles::FormOnTop(*this, true);
    model_->addListener(this);
}

// The controls listen to the model, which must outlive them.
LutEditorWindow::~LutEditorWindow() {
    model_->removeListener(this);
    qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
}

void LutEditorWindow::buildControls() {
    LutEditorModel& model = *model_;

    // Graph, node buttons and colour bar share one horizontal scale, so they
    // sit in one column with nothing between them.
    Graph_ = new DistributionGraph(model, this);
    GraphColorTab_ = new NodeTabStrip(model, this);
    ColorBar_ = new ColorBarView(model, this);
    auto* plot = new QGridLayout;
    plot->setSpacing(0);
    plot->addWidget(new CountAxisView(*Graph_, this), 0, 0);
    plot->addWidget(Graph_, 0, 1);
    plot->addWidget(GraphColorTab_, 1, 1);
    plot->addWidget(ColorBar_, 2, 1);
    plot->setRowStretch(0, 1);

    auto* valueLabel = new QLabel("&Value:", this);
    Xtxt_ = new QLineEdit(this);
    Xtxt_->setObjectName("Xtxt");
    Xtxt_->setAccessibleName("Value under the pointer");
    Xtxt_->setReadOnly(true);
    Xtxt_->setMaximumWidth(110);
    valueLabel->setBuddy(Xtxt_);
    connect(Graph_, &DistributionGraph::pointerValue, Xtxt_, &QLineEdit::setText);
    auto* Indiv = button(this, "Indiv", "Individual values");
    Indiv->setToolTip("Add a node at every distinct data value");
    connect(Indiv, &QPushButton::clicked, this, guarded(this, [this] { indivClicked(); }));
    auto* hint =
        new QLabel("Click the graph to add a node. On a node: Shift+right-drag moves it, "
                   "Ctrl+right deletes it, left click picks its colour. Insert adds a node at "
                   "a typed value.",
                   this);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto* readout = new QHBoxLayout;
    readout->addWidget(valueLabel);
    readout->addWidget(Xtxt_);
    readout->addWidget(Indiv);
    readout->addSpacing(12);
    readout->addWidget(hint, 1);

    auto* left = new QVBoxLayout;
    left->addLayout(buildGraphOptions());
    left->addLayout(plot, 1);
    left->addLayout(readout);

    rows_ = new ValueRowsPanel(model, this);
    connect(GraphColorTab_, &NodeTabStrip::colorChoiceRequested, this,
            guarded(this, [this](int k) { reportingErrors([&] { rows_->pickColor(k); }); }));

    auto* Label1 = new QLabel("NO DATA", this);
    Label1->setObjectName("Label1");
    NoDataColor_ = new ColorPicker(this);
    NoDataColor_->setObjectName("NoDataColor");
    NoDataColor_->setAccessibleName("NO DATA colour");
    NoDataColor_->setToolTip("Colour of values above the last node");
    Label1->setBuddy(NoDataColor_);
    NoDataColor_->setColor(model.noDataColor());
    connect(NoDataColor_, &ColorPicker::Changed, this, guarded(this, [this](ColorValue color) {
                model_->recorded("Set no-data colour", [&] { model_->setNoDataColor(color); });
            }));
    auto* noData = new QHBoxLayout;
    noData->addWidget(Label1);
    noData->addWidget(NoDataColor_);
    noData->addStretch(1);

    auto* nodes = new QGroupBox("Nodes", this);
    auto* right = new QVBoxLayout(nodes);
    right->addWidget(rows_, 1);
    right->addLayout(noData);
    nodes->setMinimumWidth(300);

    auto* top = new QHBoxLayout;
    top->addLayout(left, 3);
    top->addWidget(nodes, 1);

    auto* OpenBrowser = button(this, "OpenBrowser", "&Library...");
    OpenBrowser->setToolTip("Choose a colour table from the library");
    auto* cmdSave = button(this, "cmdSave", "&Save...");
    cmdSave->setToolTip("Save this colour table to the library");
    auto* Command1 = button(this, "Command1", "Reset");
    Command1->setToolTip("Go back to the last table sent");
    auto* Cancel = button(this, "Cancel", "Cancel");
    auto* OK = button(this, "OK", "OK");
    connect(OpenBrowser, &QPushButton::clicked, this, &LutEditorWindow::openBrowserRequested);
    connect(cmdSave, &QPushButton::clicked, this, &LutEditorWindow::saveRequested);
    connect(Command1, &QPushButton::clicked, this, guarded(this, [this] {
                keepRampIfChanged();
                reportingErrors([&] { model_->Reset(); });
            }));
    connect(Cancel, &QPushButton::clicked, this, guarded(this, [this] { reject(); }));
    connect(OK, &QPushButton::clicked, this, guarded(this, [this] { accept(); }));

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(OpenBrowser);
    buttons->addWidget(cmdSave);
    addUndoButtons(*buttons, cmdSave);
    buttons->addStretch(1);
    buttons->addWidget(Command1);
    buttons->addSpacing(12);
    buttons->addWidget(Cancel);
    buttons->addWidget(OK);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top, 1);
    layout->addLayout(buttons);

    setTabOrder(GraphColorTab_, Indiv);

    // A node at a typed value: Insert anywhere in the window, or the context
    // menu of the graph (suggesting the value under the pointer) and of the
    // rows (suggesting the middle of the interval after the row).
    auto* insert = new QShortcut(QKeySequence(Qt::Key_Insert), this);
    connect(insert, &QShortcut::activated, this, guarded(this, [this] { insertTypedNode({}); }));
    Graph_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(Graph_, &QWidget::customContextMenuRequested, this, guarded(this, [this](QPoint pos) {
                const double x = Graph_->valueAt(pos.x());
                offerInsertMenu(Graph_, pos, QString::fromStdString(GraphReadout::xText(x)));
            }));
    rows_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(rows_, &QWidget::customContextMenuRequested, this, guarded(this, [this](QPoint pos) {
                const int k = rows_->rowAt(pos);
                offerInsertMenu(rows_, pos,
                                k < 0 ? QString() : NodeValuePrompt::middleAfter(*model_, k));
            }));
}

void LutEditorWindow::offerInsertMenu(QWidget* source, QPoint pos, const QString& suggested) {
    QMenu menu(this);
    QAction* insert = menu.addAction("Insert node at value...");
    insert->setShortcut(QKeySequence(Qt::Key_Insert));
    if (menu.exec(source->mapToGlobal(pos)) == insert)
        insertTypedNode(suggested);
}

void LutEditorWindow::insertTypedNode(const QString& suggested) {
    if (const std::optional<float> x = NodeValuePrompt::ask(this, *model_, suggested))
        reportingErrors(
            [&] { model_->recorded("Insert node", [&] { return model_->insertNodeAt(*x); }); });
}

// Small buttons for the history, after `previous` in the tab order; their
// tooltips name the step they take back or make again.
void LutEditorWindow::addUndoButtons(QHBoxLayout& row, QWidget* previous) {
    row.addSpacing(12);
    for (QAction* action : {undo_->undoAction(), undo_->redoAction()}) {
        const QString caption = action == undo_->undoAction() ? "Undo" : "Redo";
        auto* b = button(this, caption.toLatin1().constData(), caption);
        connect(b, &QPushButton::clicked, this, guarded(this, [action] { action->trigger(); }));
        const auto follow = [b, action] {
            b->setEnabled(action->isEnabled());
            b->setToolTip(action->text());
        };
        follow();
        connect(action, &QAction::changed, b, guarded(b, follow));
        row.addWidget(b);
        setTabOrder(previous, b);
        previous = b;
    }
}

// The count scale and the ramp fill sit above the graph they change.
QLayout* LutEditorWindow::buildGraphOptions() {
    auto* label = new QLabel("&Count scale:", this);
    countScale_ = new QComboBox(this);
    countScale_->setObjectName("CountScale");
    countScale_->setAccessibleName("Count scale");
    countScale_->setToolTip("How counts are measured up the graph");
    for (const CountScale::Kind kind : CountScale::kKinds)
        countScale_->addItem(QString::fromUtf8(CountScale(kind).label()), static_cast<int>(kind));
    label->setBuddy(countScale_);
    rampFill_ = new QCheckBox("&Fill with ramp", this);
    rampFill_->setObjectName("RampFill");
    rampFill_->setAccessibleName("Fill with ramp");
    rampFill_->setToolTip("Colour the area under the curve as the ramp colours each value");
    connect(countScale_, &QComboBox::activated, this, guarded(this, [this] {
                Graph_->setCountScale(graphSettings().countScale);
                emit graphSettingsChanged();
            }));
    connect(rampFill_, &QCheckBox::clicked, this, guarded(this, [this](bool on) {
                Graph_->setRampFill(on);
                emit graphSettingsChanged();
            }));
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(countScale_);
    row->addSpacing(12);
    row->addWidget(rampFill_);
    row->addStretch(1);
    return row;
}

GraphSettings LutEditorWindow::graphSettings() const {
    return {CountScale(static_cast<CountScale::Kind>(countScale_->currentData().toInt())),
            rampFill_->isChecked()};
}

void LutEditorWindow::setGraphSettings(const GraphSettings& settings) {
    countScale_->setCurrentIndex(
        countScale_->findData(static_cast<int>(settings.countScale.kind())));
    rampFill_->setChecked(settings.rampFill);
    Graph_->setCountScale(settings.countScale);
    Graph_->setRampFill(settings.rampFill);
}

void LutEditorWindow::InitFromOrderedArray(const VariantRows& rows, std::int32_t extra) {
    model_->InitFromOrderedArray(ValueLayouts::orderedRows(rows), extra);
}

void LutEditorWindow::InitFromOrderedArray(VariantPairs rows, std::int32_t extra) {
    model_->InitFromOrderedArray(ValueLayouts::orderedRows(rows), extra);
}

void LutEditorWindow::InitFromStraightArray(const VariantRows& values, std::int32_t noData) {
    model_->InitFromStraightArray(ValueLayouts::straightValues(values), noData);
}

void LutEditorWindow::InitFromStdArray(const VariantRows& grid, std::int32_t extra) {
    model_->InitFromStdArray(ValueLayouts::valueGrid(grid), extra);
}

void LutEditorWindow::showModal() {
    setModal(true);
    exec();
}

void LutEditorWindow::noDataColorChanged() {
    if (NoDataColor_->color() != model_->noDataColor())
        NoDataColor_->setColor(model_->noDataColor());
}

void LutEditorWindow::indivClicked() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    reportingErrors([&] { model_->Indiv(); });
    QApplication::restoreOverrideCursor();
}

void LutEditorWindow::showEvent(QShowEvent* event) {
    if (!event->spontaneous())
        shownRamp_ = currentRamp();
    QDialog::showEvent(event);
}

LutEditorWindow::Ramp LutEditorWindow::currentRamp() const {
    return {model_->rows().toTable(), model_->noDataColor()};
}

// A window never shown holds nothing the user made. A ramp already kept is
// not kept again: a Reset that leaves only the no-data colour changed would
// otherwise keep the same ramp once more on the way out.
void LutEditorWindow::keepRampIfChanged() {
    if (!shownRamp_)
        return;
    Ramp ramp = currentRamp();
    if (ramp == *shownRamp_ || ramp == keptRamp_)
        return;
    keptRamp_ = ramp;
    emit rampToKeep(ramp.table, ramp.noDataColor);
}

// The ramp is kept first: the owner may end the program once it has the table.
void LutEditorWindow::accept() {
    keepRampIfChanged();
    if (!reportingErrors([&] { model_->OK(); }))
        return;
    QDialog::accept();
}

void LutEditorWindow::reject() {
    keepRampIfChanged();
    reportingErrors([&] { model_->Cancel(); });
    // The program has ended; where an exit handler lets it go on (tests), the
    // window must not stay open behind a modal loop.
    QDialog::reject();
}

} // namespace huebase

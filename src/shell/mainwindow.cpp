// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainwindow.h"

#include "calendar/datefields.h"
#include "controls/bevelbutton.h"
#include "controls/locks.h"
#include "controls/popupmenu.h"
#include "controls/pushbutton.h"
#include "controls/textfield.h"
#include "form/amountfields.h"
#include "placement/helpplacement.h"
#include "planner/document.h"
#include "planner/planwindow.h"
#include "runtime/numbers.h"
#include "shell/aboutwindow.h"
#include "shell/app.h"
#include "shell/helpwindow.h"
#include "shell/listbox.h"
#include "shell/menubar.h"
#include "strings/lookup.h"
#include "table/recombination.h"
#include "table/selectionsum.h"

#include <QCloseEvent>
#include <QDate>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QRegularExpression>
#include <QScreen>
#include <QTableWidget>

namespace shell {

using controls::BevelButton;
using controls::Lock;
using strings::text;

namespace {

constexpr QSize kDesignSize{485, 640};
constexpr QSize kMinimumSize{485, 250};

QString qs(const std::string& s) { return QString::fromStdString(s); }
std::string str(const QString& s) { return s.toStdString(); }
std::string textOf(const QLineEdit* field) { return str(field->text()); }

} // namespace

// ---------------------------------------------------------------------------------------------
// Construction

// A title, the window menu and a close button: the window has no minimise or maximise button.
MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                              Qt::WindowCloseButtonHint) {
    setAttribute(Qt::WA_DeleteOnClose);
    m_document = new planner::Document(this);
    m_methodTitle = text(strings::kAppName);
    setWindowTitle(m_methodTitle);
    setAcceptDrops(true);
    connect(this, &MainWindow::calculated, m_document, &planner::Document::update);
    buildMenuBar(menuBar(), this);

    auto* form = new controls::LockedLayoutWidget(kDesignSize, this);
    setCentralWidget(form);
    createControls(form);
    setTabOrder();
    App::instance()->addMainWindow(this);

    KindPopup_Open();
    ListBox1_Open();
    RekiKind_Open();
    DelayPop_Open();
    GankinField_Open();
    Shokai_Open();
    fitToFont(form);
    nameControls();
    bindHandlers();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now && now->window() == this && !qobject_cast<QMenuBar*>(now)) m_lastFocusedControl = now;
    });
    Event_Open();
}

void MainWindow::createControls(controls::LockedLayoutWidget* form) {
    const auto label = [&](int index, const strings::Constant& caption, QRect rect, Qt::Alignment align) {
        auto* l = new QLabel(text(caption), form);
        l->setAlignment(align | Qt::AlignVCenter);
        form->place(l, rect);
        LabelText[index] = l;
        return l;
    };
    const auto field = [&](const char* name, const char* initial, QRect rect) {
        auto* f = new controls::TextField(form);
        f->setObjectName(name);
        f->setText(initial);
        f->setAlignment(Qt::AlignCenter);
        form->place(f, rect);
        return f;
    };
    const auto bevel = [&](const char* name, BevelButton::Style style, const strings::Constant& caption, QRect rect,
                           controls::Locks locks = controls::Locks(Lock::Left) | Lock::Top) {
        auto* b = new BevelButton(style, form);
        b->setObjectName(name);
        b->setText(text(caption));
        form->place(b, rect, locks);
        return b;
    };

    Rectangle1 = new QFrame(form);
    Rectangle1->setObjectName("Rectangle1");
    Rectangle1->setFrameShape(QFrame::Box);
    Rectangle1->setStyleSheet("QFrame#Rectangle1 { border: 1px solid #999999; background: white; }");
    form->place(Rectangle1, {80, 114, 35, 22});
    SelNum = new QLabel("0", Rectangle1);
    SelNum->setAlignment(Qt::AlignCenter);
    (new QHBoxLayout(Rectangle1))->setContentsMargins(0, 0, 0, 0);
    Rectangle1->layout()->addWidget(SelNum);

    label(0, strings::kLabelText0, {20, 23, 56, 20}, Qt::AlignLeft)->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label(1, strings::kLabelText1, {168, 23, 38, 20}, Qt::AlignRight);
    label(2, strings::kLabelText2, {244, 23, 42, 20}, Qt::AlignRight);
    label(3, strings::kLabelText3, {304, 55, 62, 20}, Qt::AlignRight);
    label(4, strings::kYear, {194, 55, 15, 20}, Qt::AlignHCenter);
    label(5, strings::kMonth, {237, 55, 15, 20}, Qt::AlignHCenter);
    label(6, strings::kDay, {279, 55, 15, 20}, Qt::AlignRight);
    label(7, strings::kLabelText7, {20, 116, 58, 20}, Qt::AlignLeft);

    GankinField = field("GankinField", "100000000", {77, 21, 88, 22});
    Nenriritsu = field("Nenriritsu", "2.0", {207, 21, 34, 22});
    Kaisu = field("Kaisu", "144", {290, 21, 32, 22});
    StartY = field("StartY", "02", {153, 53, 40, 22});
    StartM = field("StartM", "3", {211, 53, 25, 22});
    StartD = field("StartD", "15", {253, 53, 25, 22});

    KindPopup = new controls::PopupMenu(form);
    KindPopup->setObjectName("KindPopup");
    KindPopup->addItems({text(strings::kGanri), text(strings::kGankin)});
    KindPopup->setCurrentIndex(1);
    form->place(KindPopup, {279, 85, 123, 20});

    CulcButton = new controls::PushButton(form);
    CulcButton->setObjectName("CulcButton");
    CulcButton->setText(text(strings::kCulc));
    CulcButton->setDefault(true);
    form->place(CulcButton, {408, 82, 57, 58}, controls::Locks(Lock::Top) | Lock::Right);

    ListBox1 = new shell::ListBox(form);
    ListBox1->setObjectName("ListBox1");
    form->place(ListBox1, {20, 146, 445, 440}, controls::Locks(Lock::Left) | Lock::Top | Lock::Right | Lock::Bottom);

    RisokuTotal = field("RisokuTotal", "0", {177, 114, 113, 22});
    RisokuTotal->setReadOnly(true);

    SelectAllButton = bevel("SelectAllButton", BevelButton::Style::Toggle, strings::kSelectAll, {297, 114, 106, 22});
    RekiKind = bevel("RekiKind", BevelButton::Style::Menu, strings::kRekiR, {89, 53, 62, 22});
    label(8, strings::kLabelText8, {118, 116, 52, 20}, Qt::AlignRight);

    const controls::Locks bottom = controls::Locks(Lock::Left) | Lock::Bottom;
    BevelNewNext = bevel("BevelNewNext", BevelButton::Style::Push, strings::kNewNext, {20, 598, 140, 22}, bottom);
    BevelDispAll =
        bevel("BevelDispAll", BevelButton::Style::Push, strings::kShowPayoffButton, {172, 598, 140, 22}, bottom);
    BevelDelBelow =
        bevel("BevelDelBelow", BevelButton::Style::Push, strings::kHideBelowButton, {324, 598, 140, 22}, bottom);
    BevelNewNext->setToolTip(text(strings::kNewNextTip));
    BevelDispAll->setToolTip(text(strings::kShowPayoffTip));
    BevelDelBelow->setToolTip(text(strings::kHideBelowTip));
    for (BevelButton* b : {BevelNewNext, BevelDispAll, BevelDelBelow}) b->setEnabled(false);

    label(9, strings::kLabelText9, {330, 23, 30, 20}, Qt::AlignRight)->setToolTip(text(strings::kLabel9tip));
    Shokai = field("Shokai", "1", {361, 21, 40, 22});
    Shokai->setToolTip(QStringLiteral("表示対象先頭行の回数"));
    label(10, strings::kLabelText10, {20, 85, 59, 20}, Qt::AlignLeft);
    Kansai = new QLabel(form);
    Kansai->setObjectName("Kansai");
    Kansai->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->place(Kansai, {89, 85, 128, 20});
    label(11, strings::kLabelText11, {20, 55, 64, 20}, Qt::AlignLeft);
    label(14, strings::kDay_th, {447, 55, 15, 20}, Qt::AlignRight);
    StartDX = field("StartDX", "8", {423, 53, 25, 22});
    HelpBtn = bevel("HelpBtn", BevelButton::Style::Toggle, strings::kHelpButton, {408, 21, 55, 22},
                    controls::Locks(Lock::Top) | Lock::Right);
    DelayPop = bevel("DelayPop", BevelButton::Style::Menu, strings::kNext, {370, 53, 50, 22});
}

void MainWindow::fitToFont(controls::LockedLayoutWidget* form) {
    using controls::widthForCaptions;
    // The widest text each field is to show whole.
    const std::pair<controls::TextField*, const char*> fields[] = {{GankinField, "999,999,999,999"},
                                                                   {Nenriritsu, "12.345"},
                                                                   {Kaisu, "100000"},
                                                                   {Shokai, "100000"},
                                                                   {StartY, "-9999"},
                                                                   {StartM, "00"},
                                                                   {StartD, "00"},
                                                                   {StartDX, "00"},
                                                                   {RisokuTotal, "999,999,999,999"}};
    for (const auto& [field, widest] : fields) form->setNeededWidth(field, controls::widthForText(field, widest));
    for (const auto& [index, label] : LabelText) form->setNeededWidth(label, widthForCaptions(label, {label->text()}));
    form->setNeededWidth(Rectangle1, widthForCaptions(SelNum, {"100000"}) + 2 * Rectangle1->frameWidth());
    // The pay-off date of the longest loan from the last year the form takes, in each era.
    QStringList payoffs;
    for (int era = calendar::kWestern; era < calendar::kEraCount; ++era)
        payoffs << qs(calendar::payoffText(calendar::Date(calendar::kYearLimit + engine::kMaxPayments / 12 + 1, 12, 28),
                                           era, payoffWords()));
    form->setNeededWidth(Kansai, widthForCaptions(Kansai, payoffs));
    for (BevelButton* menuButton : {RekiKind, DelayPop}) {
        QStringList items;
        for (const QAction* item : menuButton->menu()->actions()) items << item->text();
        form->setNeededWidth(menuButton, widthForCaptions(menuButton, items));
    }
    form->setNeededWidth(SelectAllButton,
                         widthForCaptions(SelectAllButton, {text(strings::kSelectAll), text(strings::kDeselectAll)}));
    for (QAbstractButton* button :
         std::initializer_list<QAbstractButton*>{CulcButton, HelpBtn, BevelNewNext, BevelDispAll, BevelDelBelow})
        form->setNeededWidth(button, widthForCaptions(button, {button->text()}));
    form->setNeededWidth(KindPopup, KindPopup->sizeHint().width());
    form->setNeededWidth(ListBox1, ListBox1->minimumTableWidth());
    // Rows as much taller as a field needs to be in this font (a large system font).
    const double verticalScale = std::max(1.0, GankinField->sizeHint().height() / 22.0);
    form->fit(verticalScale);

    const QSize size = form->designSize();
    form->setMinimumSize(size.width(), static_cast<int>(kMinimumSize.height() * verticalScale));
    // The table gives up what the screen lacks.
    controls::resizeWithinScreen(this, QSize(size.width(), size.height() + menuBar()->sizeHint().height()));
}

void MainWindow::nameControls() {
    // What a screen reader says of each control: a field is named by its label (without the
    // colon), a button that chooses by what it chooses, a figure by its label; the value chosen
    // or shown is the description, kept up to date where it changes.
    const auto bare = [](const QLabel* label) { return label->text().remove(QRegularExpression("[:：]\\s*$")); };
    const std::pair<QWidget*, int> labelled[] = {{GankinField, 0}, {Nenriritsu, 1}, {Kaisu, 2},  {Shokai, 9},
                                                 {RisokuTotal, 8}, {SelNum, 7},     {Kansai, 10}};
    for (const auto& [control, label] : labelled) {
        control->setAccessibleName(bare(LabelText[label]));
        LabelText[label]->setBuddy(control);
    }
    const std::pair<QWidget*, const strings::Constant&> named[] = {
        {StartY, strings::kAccBorrowYear}, {StartM, strings::kAccBorrowMonth}, {StartD, strings::kAccBorrowDay},
        {StartDX, strings::kAccPayDay},    {RekiKind, strings::kAccCalendar},  {DelayPop, strings::kAccDelay},
        {KindPopup, strings::kAccMethod},  {ListBox1, strings::kAccTable}};
    for (const auto& [control, name] : named) control->setAccessibleName(text(name));
    // On Linux a screen reader names a combo box by the label whose buddy it is: the method has
    // none on the screen, so it gets one that is not shown.
    auto* methodLabel = new QLabel(text(strings::kAccMethod), KindPopup->parentWidget());
    methodLabel->setBuddy(KindPopup);
    methodLabel->hide();
    SelNum->setAccessibleDescription(SelNum->text());
    LabelText[11]->setBuddy(StartY);
    LabelText[3]->setBuddy(StartDX);
}

void MainWindow::setTabOrder() {
    // The input fields in reading order, then the table, then the other controls.
    const QWidget* const order[] = {GankinField,     Nenriritsu,   Kaisu,        Shokai,        StartY,
                                    StartM,          StartD,       StartDX,      ListBox1,      RisokuTotal,
                                    SelectAllButton, BevelNewNext, BevelDispAll, BevelDelBelow, RekiKind,
                                    DelayPop,        KindPopup,    CulcButton,   HelpBtn};
    for (std::size_t i = 0; i + 1 < std::size(order); ++i)
        QWidget::setTabOrder(const_cast<QWidget*>(order[i]), const_cast<QWidget*>(order[i + 1]));
}

void MainWindow::rememberTextOnFocus(controls::TextField* field) {
    connect(field, &controls::TextField::GotFocus, this, [this, field] { curText = textOf(field); });
}

void MainWindow::bindHandlers() {
    using controls::TextField;
    connect(GankinField, &TextField::GotFocus, this, &MainWindow::GankinField_GotFocus);
    connect(GankinField, &TextField::LostFocus, this, &MainWindow::GankinField_LostFocus);
    for (TextField* f : {Nenriritsu, Kaisu, Shokai, StartY, StartM, StartD, StartDX}) rememberTextOnFocus(f);
    connect(Nenriritsu, &TextField::LostFocus, this, &MainWindow::Nenriritsu_LostFocus);
    connect(Kaisu, &TextField::LostFocus, this, &MainWindow::Kaisu_LostFocus);
    connect(Shokai, &TextField::LostFocus, this, &MainWindow::Shokai_LostFocus);
    connect(StartY, &TextField::LostFocus, this, &MainWindow::StartY_LostFocus);
    connect(StartM, &TextField::LostFocus, this, &MainWindow::StartM_LostFocus);
    connect(StartD, &TextField::LostFocus, this, &MainWindow::StartD_LostFocus);
    connect(StartDX, &TextField::LostFocus, this, &MainWindow::StartDX_LostFocus);
    // Return in a field of the form presses the default button.
    for (TextField* f : {GankinField, Nenriritsu, Kaisu, Shokai, StartY, StartM, StartD, StartDX})
        connect(f, &QLineEdit::returnPressed, CulcButton, &controls::PushButton::Push);

    connect(RekiKind, &BevelButton::Action, this, &MainWindow::RekiKind_Action);
    connect(DelayPop, &BevelButton::Action, this, &MainWindow::DelayPop_Action);
    connect(KindPopup, &controls::PopupMenu::Change, this, &MainWindow::KindPopup_Change);
    connect(CulcButton, &controls::PushButton::Action, this, &MainWindow::CulcButton_Action);
    connect(ListBox1, &shell::ListBox::Change, this, &MainWindow::ListBox1_Change);
    connect(ListBox1, &shell::ListBox::SelectAllRequested, this, &MainWindow::_EditSelectAll_Action);
    ListBox1->MouseDown = [this](int x, int y) { return ListBox1_MouseDown(x, y); };
    ListBox1->HeaderPressed = [this](int column) { return ListBox1_HeaderPressed(column); };
    connect(SelectAllButton, &BevelButton::Action, this, &MainWindow::SelectAllButton_Action);
    connect(BevelDispAll, &BevelButton::Action, this, &MainWindow::BevelDispAll_Action);
    connect(BevelDelBelow, &BevelButton::Action, this, &MainWindow::BevelDelBelow_Action);
    connect(BevelNewNext, &BevelButton::Action, this, &MainWindow::BevelNewNext_Action);
    connect(HelpBtn, &BevelButton::Action, this, &MainWindow::HelpBtn_Action);
    // The table's context menu: Copy, and what the buttons about it do.
    ListBox1->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(ListBox1, &QWidget::customContextMenuRequested, this, [this](QPoint at) {
        QMenu menu(this);
        menu.addAction(text(strings::kEditCopy), this, [this] { editCommand(EditCommand::Copy); })
            ->setEnabled(!ListBox1->SelectedRows().empty());
        for (BevelButton* button : {SelectAllButton, BevelDelBelow, BevelNewNext})
            menu.addAction(button->text(), button, &QAbstractButton::click)->setEnabled(button->isEnabled());
        menu.exec(ListBox1->viewport()->mapToGlobal(at));
    });
}

void MainWindow::setForm(const engine::LoanForm& form) {
    GankinField->setText(qs(form.principal));
    Nenriritsu->setText(qs(form.rate));
    Kaisu->setText(qs(form.times));
    Shokai->setText(qs(form.firstRow));
    showEra(form.era);
    StartY->setText(qs(form.date.year));
    StartM->setText(qs(form.date.month));
    StartD->setText(qs(form.date.day));
    StartDX->setText(qs(form.date.payDay));
    showDelay(form.delay);
    // The method last: its Change recalculates from the whole form; where it stays, a push does.
    const int method = form.flatPayment ? 0 : 1;
    if (KindPopup->ListIndex() != method)
        KindPopup->setListIndex(method);
    else
        CulcButton->Push();
}

// ---------------------------------------------------------------------------------------------
// The window

void MainWindow::Event_Open() {
    const QDate today = QDate::currentDate();
    if (App::instance()->mainWindows().size() == 1) {
        StartY->setText(qs(runtime::Str(calendar::yearInEra(calendar::kReiwa, today.year()))));
        StartM->setText(qs(runtime::Str(static_cast<std::int64_t>(today.month()))));
        StartD->setText(qs(runtime::Str(static_cast<std::int64_t>(today.day()))));
        m_methodTitle = KindPopup->currentText() + text(strings::kCulc);
        showTitle();
    }
    totalRows = -1;
    GankinField->setFocus();
    CulcButton->Push();
}

void MainWindow::Event_Resized() { ListBox1->setFocus(Qt::OtherFocusReason); }

void MainWindow::Event_Close() {
    if (App::instance()->isExistHelp && App::instance()->hasHelpWindow()) App::instance()->helpWindow()->hide();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    Event_Resized();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!m_document->maySave()) {
        event->ignore();
        return;
    }
    Event_Close();
    QMainWindow::closeEvent(event);
}

// Files dropped on the window open as plan documents, each in a window.
void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile()) paths << url.toLocalFile();
    planner::Document::open(paths, this);
}

void MainWindow::showTitle() {
    const QString path = m_document->path();
    setWindowTitle(path.isEmpty() ? m_methodTitle : QFileInfo(path).fileName() + "[*] — " + m_methodTitle);
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) App::instance()->mainWindowActivated(this);
}

// ---------------------------------------------------------------------------------------------
// Calculation

calendar::DateFieldTexts MainWindow::dateFieldTexts() const { return {textOf(StartY), textOf(StartM), textOf(StartD)}; }

calendar::PayoffWords MainWindow::payoffWords() {
    calendar::PayoffWords words;
    words.eraNames = {"", str(text(strings::kRekiS)), str(text(strings::kRekiH)), str(text(strings::kRekiR))};
    words.year = str(text(strings::kYear));
    words.month = str(text(strings::kMonth));
    words.day = str(text(strings::kDay));
    return words;
}

engine::LoanForm MainWindow::loanForm() const {
    engine::LoanForm form;
    form.principal = textOf(GankinField);
    form.rate = textOf(Nenriritsu);
    form.times = textOf(Kaisu);
    form.firstRow = textOf(Shokai);
    form.era = RekiKind->MenuValue();
    form.date = {textOf(StartY), textOf(StartM), textOf(StartD), textOf(StartDX)};
    form.delay = DelayPop->MenuValue();
    form.flatPayment = isGanri;
    return form;
}

void MainWindow::CulcButton_Action() {
    ++m_actionRuns;
    if (engine::readLoanForm(loanForm()).zeroInput) return QApplication::beep();
    const bool allSelected = SelectAllButton->Value();
    auto calc = endEditAndCalculate();
    if (!calc) return;
    showPayoff(calc->record.dates.payoff);
    record = calc->record;
    setList(table::rowTexts(calc->payments, calc->terms.dateLine.era, calc->terms.dateLine.payDay));
    if (allSelected) {
        selectAllRows();
    } else {
        optSelectBtnState();
    }
    emit calculated();
}

planner::PlanWindow* MainWindow::planWindow() const { return m_plan; }

void MainWindow::showPlan() {
    if (!m_plan) {
        m_plan = new planner::PlanWindow(this);
        m_document->attach(m_plan);
    }
    m_plan->show();
    m_plan->raise();
    m_plan->activateWindow();
    m_plan->Events->setFocus();
}

std::optional<engine::Calculation> MainWindow::endEditAndCalculate() {
    // Moving the focus to the table ends an edit in progress: the field's LostFocus corrects
    // its text and, where it changed, runs a calculation of its own from the corrected form.
    // Where a field is being left already, the focus stays on its way to where the user sent it.
    const int runsBefore = m_actionRuns;
    if (!controls::TextField::isBeingLeft()) ListBox1->setFocus(Qt::OtherFocusReason);
    if (m_actionRuns != runsBefore) return std::nullopt;

    engine::Calculation calc = engine::calculate(loanForm(), {numTop, totalRows});
    if (calc.refusal != engine::Refusal::None) {
        QApplication::beep();
        return std::nullopt;
    }
    return calc;
}

void MainWindow::showPayoff(const calendar::Date& payoff) {
    Kansai->setText(qs(calendar::payoffText(payoff, RekiKind->MenuValue(), payoffWords())));
    Kansai->setAccessibleDescription(Kansai->text());
}

void MainWindow::setList(std::vector<table::Row> rows) {
    ListBox1->DeleteAllRows();
    ListBox1->setRows(std::move(rows));
}

// ---------------------------------------------------------------------------------------------
// Method popup

void MainWindow::KindPopup_Open() { isGanri = KindPopup->ListIndex() == 0; }

void MainWindow::KindPopup_Change() {
    m_methodTitle = KindPopup->currentText() + text(strings::kCulc);
    showTitle();
    isGanri = KindPopup->ListIndex() == 0;
    CulcButton->Push();
}

// ---------------------------------------------------------------------------------------------
// Era and date line

void MainWindow::showEra(int era) {
    // The first four menu items are the era names, the texts the caption is compared with.
    RekiKind->setMenuValue(era);
    RekiKind->setText(RekiKind->List(era));
    RekiKind->setAccessibleDescription(RekiKind->text());
}

void MainWindow::RekiKind_Open() {
    for (const QString& item : strings::fields(strings::kRekiCombination, ',')) RekiKind->AddRow(item);
    showEra(calendar::kReiwa);
}

void MainWindow::RekiKind_Action() {
    const QString oldCaption = RekiKind->text();
    const int choice = RekiKind->MenuValue();
    if (choice >= calendar::kWestern && choice < calendar::kEraCount) {
        showEra(choice);
        optSeireki();
        CulcButton->Push();
        return;
    }
    // "XC<->JC": the caption in force says which way to convert.
    int oldEra = calendar::kWestern;
    for (int era = calendar::kShowa; era < calendar::kEraCount; ++era)
        if (oldCaption == RekiKind->List(era)) oldEra = era;
    const auto converted = calendar::convertCalendar(oldEra, calendar::readYear(textOf(StartY)),
                                                     runtime::intVal(textOf(StartM)), runtime::intVal(textOf(StartD)));
    showEra(converted.era);
    StartY->setText(qs(runtime::Str(converted.year)));
    CulcButton->Push();
}

void MainWindow::optSeireki() {
    if (RekiKind->MenuValue() == calendar::kWestern) return;
    const auto field = calendar::correctYearField(RekiKind->MenuValue(), dateFieldTexts());
    if (!field.era) return;
    showEra(*field.era);
    StartY->setText(qs(field.year));
}

void MainWindow::optStartY() {
    const auto field = calendar::correctYearField(RekiKind->MenuValue(), dateFieldTexts());
    if (field.era) showEra(*field.era);
    StartY->setText(qs(field.year));
}

void MainWindow::StartY_LostFocus() {
    optStartY();
    if (curText != textOf(StartY)) CulcButton->Push();
}

void MainWindow::StartM_LostFocus() {
    const auto field = calendar::correctMonthField(RekiKind->MenuValue(), dateFieldTexts());
    if (field.day) StartD->setText(qs(*field.day));
    if (field.month) StartM->setText(qs(*field.month));
    optStartY();
    if (curText != textOf(StartM)) CulcButton->Push();
}

void MainWindow::StartD_LostFocus() {
    if (const auto day = calendar::correctDayField(RekiKind->MenuValue(), dateFieldTexts())) StartD->setText(qs(*day));
    optStartY();
    if (curText != textOf(StartD)) CulcButton->Push();
}

void MainWindow::StartDX_LostFocus() {
    StartDX->setText(qs(calendar::payDayText(textOf(StartDX))));
    if (curText != textOf(StartDX)) CulcButton->Push();
}

void MainWindow::DelayPop_Open() {
    const QString items = QStringList{text(strings::kNext), text(strings::k2After), text(strings::k3After)}.join(',');
    for (const QString& item : items.split(',')) DelayPop->AddRow(item);
    showDelay(calendar::kNext);
}

void MainWindow::DelayPop_Action() {
    const QString oldCaption = DelayPop->text();
    showDelay(DelayPop->MenuValue());
    if (DelayPop->text() != oldCaption) CulcButton->Push();
}

void MainWindow::showDelay(int delay) {
    DelayPop->setMenuValue(delay);
    DelayPop->setText(DelayPop->List(delay));
    DelayPop->setAccessibleDescription(DelayPop->text());
}

// ---------------------------------------------------------------------------------------------
// Amount fields

void MainWindow::GankinField_Open() { GankinField->setText(qs(form::principalForDisplay(textOf(GankinField)))); }

void MainWindow::GankinField_GotFocus() {
    GankinField->setText(qs(form::principalForEditing(textOf(GankinField))));
    curText = textOf(GankinField);
}

void MainWindow::GankinField_LostFocus() {
    const std::string plain = form::principalForEditing(textOf(GankinField));
    GankinField->setText(qs(form::principalForDisplay(plain)));
    if (curText != plain) CulcButton->Push();
}

void MainWindow::Nenriritsu_LostFocus() {
    Nenriritsu->setText(qs(form::plainNumber(textOf(Nenriritsu))));
    if (curText != textOf(Nenriritsu)) CulcButton->Push();
}

void MainWindow::Kaisu_LostFocus() {
    Kaisu->setText(qs(form::countText(textOf(Kaisu))));
    if (curText != textOf(Kaisu)) CulcButton->Push();
}

void MainWindow::Shokai_Open() { numTop = runtime::intVal(textOf(Shokai)); }

void MainWindow::Shokai_LostFocus() {
    Shokai->setText(qs(form::plainNumber(textOf(Shokai))));
    if (textOf(Shokai) == curText) return;
    const form::FirstRow first = form::firstRow(textOf(Shokai), textOf(Kaisu));
    Shokai->setText(qs(first.text));
    numTop = first.number;
    // A cut that ends before the new first row would leave no row: it goes.
    const int count = ListBox1->ListCount();
    const double last = count > 0 ? runtime::Val(ListBox1->Cell(count - 1, table::kNumber)) : 0.0;
    if (static_cast<double>(numTop) > last) prepareShowAll();
    CulcButton->Push();
}

// ---------------------------------------------------------------------------------------------
// Table

void MainWindow::ListBox1_Open() {
    ListBox1->setHeadings(strings::fields(strings::kHeader, '\t'));
    // The widest texts: a six-digit payment number, a date, and the amounts of a loan of up to
    // 100,000,000 (the balance of a larger one scrolls with the table's width).
    const QString amount = "888,888,888";
    ListBox1->setColumnWidths({10, 17, std::nullopt, std::nullopt, std::nullopt, 23},
                              {"100000", "88.88.88", amount, amount, amount, amount});
}

bool MainWindow::ListBox1_MouseDown(int /*x*/, int y) { return y < 17; }

bool MainWindow::ListBox1_HeaderPressed(int /*column*/) { return true; }

void MainWindow::ListBox1_Change() {
    const int selected = ListBox1->SelCount();
    BevelNewNext->setEnabled(selected == 1);
    BevelDelBelow->setEnabled(selected == 1);
    BevelDispAll->setEnabled(totalRows >= 0);
    table::SelectionSum sum;
    for (const int row : ListBox1->SelectedRows()) sum.add(ListBox1->Cell(row, table::kInterest));
    RisokuTotal->setText(qs(sum.totalText()));
    SelNum->setText(qs(sum.countText()));
    SelNum->setAccessibleDescription(SelNum->text());
    optSelectBtnState();
}

void MainWindow::SelectAllButton_Action() {
    if (SelectAllButton->Value())
        selectAllRows();
    else
        ListBox1->setListIndex(-1);
}

void MainWindow::selectAllRows() { ListBox1->selectAllRows(); }

void MainWindow::optSelectBtnState() {
    const bool all = ListBox1->SelCount() >= ListBox1->ListCount();
    SelectAllButton->setText(text(all ? strings::kDeselectAll : strings::kSelectAll));
    SelectAllButton->setValue(all);
}

bool MainWindow::_EditSelectAll_Action() {
    selectAllRows();
    return true;
}

void MainWindow::BevelDelBelow_Action() { hideBelow(); }

void MainWindow::hideBelow() {
    const int row = ListBox1->ListIndex();
    if (ListBox1->SelCount() != 1 || row >= ListBox1->ListCount() - 1) return;
    totalRows = runtime::intVal(ListBox1->Cell(row, table::kNumber));
    CulcButton->Push();
    ListBox1->setListIndex(row);
}

void MainWindow::BevelDispAll_Action() {
    const int row = ListBox1->ListIndex();
    prepareShowAll();
    CulcButton->Push();
    ListBox1->setListIndex(row);
}

void MainWindow::prepareShowAll() {
    totalRows = -1;
    BevelDispAll->setEnabled(false);
}

void MainWindow::BevelNewNext_Action() {
    if (ListBox1->ListIndex() < 0) return;
    // After the cut the selected payment is the table's last row, its balance the new principal.
    hideBelow();
    const int n = ListBox1->ListCount();
    auto* window = new MainWindow;
    window->setForm(table::recombination(loanForm(), record.dates.firstPayment, ListBox1->RowCells(n - 1), n));
    window->resize(size());
    window->show();
}

// ---------------------------------------------------------------------------------------------
// Help and about

void MainWindow::HelpBtn_Action() {
    App* app = App::instance();
    HelpWindow* help = app->helpWindow();
    if (!HelpBtn->Value()) {
        app->isExistHelp = false;
        help->hide();
        return;
    }
    help->parentWin = this;
    // Frames with frames: the help window's frame is as much wider than its content as ours.
    const QRect main = frameGeometry();
    const int helpWidth = help->width() + main.width() - width();
    const int screenWidth = QGuiApplication::primaryScreen()->availableGeometry().width();
    help->move(placement::helpWindowLeft(main.left(), main.width(), helpWidth, screenWidth), main.top());
    app->isExistHelp = true;
    help->show();
}

bool MainWindow::_AppleAbout_Action() {
    App::instance()->aboutWindow()->ShowModal();
    return false;
}

// ---------------------------------------------------------------------------------------------
// Edit menu

QWidget* MainWindow::focusedControl() const {
    // While the menu bar is navigated by keyboard it holds the focus; the commands are for the
    // control that had it before.
    QWidget* focused = focusWidget();
    if (qobject_cast<QMenuBar*>(focused) && m_lastFocusedControl) return m_lastFocusedControl;
    return focused;
}

bool MainWindow::canDo(EditCommand command) const {
    auto* field = qobject_cast<QLineEdit*>(focusedControl());
    // Copy takes the field's selected text where there is some, else the table's selected rows,
    // whichever control has the focus.
    if (command == EditCommand::Copy) return (field && field->hasSelectedText()) || ListBox1->SelCount() > 0;
    if (!field) return command == EditCommand::SelectAll;
    const bool editable = !field->isReadOnly();
    switch (command) {
    case EditCommand::Undo: return editable && field->isUndoAvailable();
    case EditCommand::Redo: return editable && field->isRedoAvailable();
    case EditCommand::Cut:
    case EditCommand::Clear: return editable && field->hasSelectedText();
    case EditCommand::Paste: return editable;
    case EditCommand::Copy:
    case EditCommand::SelectAll: return true;
    }
    return false;
}

void MainWindow::editCommand(EditCommand command) {
    if (!canDo(command)) return;
    auto* field = qobject_cast<QLineEdit*>(focusedControl());
    if (command == EditCommand::Copy && !(field && field->hasSelectedText())) return ListBox1->copySelection();
    if (!field) {
        if (command == EditCommand::SelectAll) _EditSelectAll_Action();
        return;
    }
    switch (command) {
    case EditCommand::Undo: field->undo(); break;
    case EditCommand::Redo: field->redo(); break;
    case EditCommand::Cut: field->cut(); break;
    case EditCommand::Copy: field->copy(); break;
    case EditCommand::Paste: field->paste(); break;
    case EditCommand::Clear: field->del(); break;
    case EditCommand::SelectAll: field->selectAll(); break;
    }
}

} // namespace shell

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The working window: a form above a repayment table, one loan a window. Its handlers carry
// the names of the controls and events they answer; each reads the controls, calls the rule,
// writes the texts and, where an input changed, pushes CulcButton, the one road to a new table.
//
// The road of one edit, the rate typed and left with Tab:
//   Nenriritsu_LostFocus    writes the text plainly (form::plainNumber) and, where it changed
//                           from what the field held on entry (curText), pushes CulcButton;
//   CulcButton_Action       refuses a zero principal, rate or count with a beep
//                           (engine::readLoanForm), remembers whether all rows were selected;
//   endEditAndCalculate     reads the form once (loanForm) and calculates it (engine::calculate:
//                           readLoanForm, settleLoan, walkSchedule), or beeps at a refusal;
//   showPayoff, setList     write the pay-off date and the rows (table::rowTexts) into Kansai
//                           and ListBox1, whose Change (ListBox1_Change) totals the selection;
//   selectAllRows or optSelectBtnState bring back the Select All state.
//
// Glossary of the romanised names, which are the names of the controls and their handlers:
//   gankin   principal                 ganri    principal with interest (flat payment)
//   nenriritsu  annual rate            kaisu    number of payments
//   shokai   first (row listed)        kansai   paid in full (the pay-off date)
//   kariire  borrowing                 risoku   interest
//   reki     calendar (era)            seireki  Western year
//   uruu     leap (year)               culc     calculate

#include "calendar/datefields.h"
#include "engine/calculation.h"
#include "table/rows.h"

#include <QLabel>
#include <QMainWindow>
#include <QPointer>

#include <cstdint>
#include <map>
#include <optional>
#include <string>

class QFrame;

namespace controls {
class BevelButton;
class LockedLayoutWidget;
class PopupMenu;
class PushButton;
class TextField;
} // namespace controls

namespace planner {
class Document;
class PlanWindow;
} // namespace planner

namespace shell {

class ListBox;

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);

    // The Plan window of this window, opened or raised.
    void showPlan();
    // Its Plan window, none until it is first opened.
    planner::PlanWindow* planWindow() const;
    // The plan document the window shows, and its title: the document's name with the modified
    // mark where it has a file, then the method.
    planner::Document* document() const { return m_document; }
    void showTitle();
    // The words of the pay-off statement in the user's language.
    static calendar::PayoffWords payoffWords();

    // The form as the calculation reads it, and its inverse: the form written whole into the
    // controls, then calculated once (a new window's form comes this way).
    engine::LoanForm loanForm() const;
    void setForm(const engine::LoanForm& form);

    enum class EditCommand { Undo, Redo, Cut, Copy, Paste, Clear, SelectAll };
    Q_ENUM(EditCommand)
    bool canDo(EditCommand command) const;
    void editCommand(EditCommand command);

    // The controls, by the names the handlers use.
    controls::TextField* GankinField;
    controls::TextField* Nenriritsu;
    controls::TextField* Kaisu;
    controls::TextField* Shokai;
    controls::TextField* StartY;
    controls::TextField* StartM;
    controls::TextField* StartD;
    controls::TextField* StartDX;
    controls::BevelButton* RekiKind;
    controls::BevelButton* DelayPop;
    controls::PopupMenu* KindPopup;
    controls::PushButton* CulcButton;
    ListBox* ListBox1;
    controls::TextField* RisokuTotal;
    QFrame* Rectangle1;
    QLabel* SelNum;
    QLabel* Kansai;
    controls::BevelButton* SelectAllButton;
    controls::BevelButton* BevelNewNext;
    controls::BevelButton* BevelDispAll;
    controls::BevelButton* BevelDelBelow;
    controls::BevelButton* HelpBtn;
    std::map<int, QLabel*> LabelText;

    // The loan record and the display range.
    bool isGanri = false;
    std::int64_t numTop = 1;
    std::int64_t totalRows = -1;
    std::string curText;
    engine::LoanRecord record;

    // Calculation.
    void CulcButton_Action();
    // Ends an edit in progress (whose field may calculate on its own) and calculates the form;
    // none where the field did or the calculation is refused (with a beep).
    std::optional<engine::Calculation> endEditAndCalculate();
    void showPayoff(const calendar::Date& payoff);
    void setList(std::vector<table::Row> rows);

    // Method popup.
    void KindPopup_Open();
    void KindPopup_Change();

    // Era and date line.
    void RekiKind_Open();
    void RekiKind_Action();
    void optSeireki();
    void optStartY();
    void StartY_LostFocus();
    void StartM_LostFocus();
    void StartD_LostFocus();
    void StartDX_LostFocus();
    void DelayPop_Open();
    void DelayPop_Action();

    // Amount fields.
    void GankinField_Open();
    void GankinField_GotFocus();
    void GankinField_LostFocus();
    void Nenriritsu_LostFocus();
    void Kaisu_LostFocus();
    void Shokai_Open();
    void Shokai_LostFocus();

    // Table.
    void ListBox1_Open();
    bool ListBox1_MouseDown(int x, int y);
    bool ListBox1_HeaderPressed(int column);
    void ListBox1_Change();
    void SelectAllButton_Action();
    void selectAllRows();
    void optSelectBtnState();
    bool _EditSelectAll_Action();
    void BevelDelBelow_Action();
    void hideBelow();
    void BevelDispAll_Action();
    void prepareShowAll();
    void BevelNewNext_Action();

    // Help and about.
    void HelpBtn_Action();
    bool _AppleAbout_Action();

    // The window.
    void Event_Open();
    void Event_Resized();
    void Event_Close();

signals:
    // A new table was calculated.
    void calculated();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void createControls(controls::LockedLayoutWidget* form);
    void bindHandlers();
    void setTabOrder();
    // Sizes and places the controls so that the widest text each shows fits in the font in use.
    void fitToFont(controls::LockedLayoutWidget* form);
    calendar::DateFieldTexts dateFieldTexts() const;
    // The era shown by RekiKind, caption and menu value together; the same for the delay.
    void showEra(int era);
    void showDelay(int delay);
    // The names that assistive technology reads.
    void nameControls();
    // Every field whose focus handlers only remember the text it had.
    void rememberTextOnFocus(controls::TextField* field);

    // The control the Edit commands act on.
    QWidget* focusedControl() const;

    int m_actionRuns = 0;
    QPointer<QWidget> m_lastFocusedControl;
    QPointer<planner::PlanWindow> m_plan;
    planner::Document* m_document;
    QString m_methodTitle;
};

} // namespace shell

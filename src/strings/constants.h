// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Every text the user reads, as a named constant with a key (its class and its name) and the
// default text. The language resources translate them by key; the default is the fallback.

#include <array>
#include <string_view>

namespace strings {

struct Constant {
    std::string_view context; // the class that owns the constant
    std::string_view name;
    std::string_view defaultText;
};

// A text of the interface: context and name are its key, the English default is what shows
// without a translation. Qt's lupdate reads these as QT_TRANSLATE_NOOP3(context, name, default),
// so that translators see the English default beside each key.
#define KESTRUNE_TEXT(context, name, defaultText)                                                                      \
    ::strings::Constant { context, name, defaultText }

// App
inline constexpr Constant kAppName = KESTRUNE_TEXT("App", "kAppName", "Kestrune");
inline constexpr Constant kAppName2 =
    KESTRUNE_TEXT("App", "kAppName2", "Principal payment\nor Flat payment Calculation");
inline constexpr Constant kFileMenu = KESTRUNE_TEXT("App", "kFileMenu", "&File");
inline constexpr Constant kFileNew = KESTRUNE_TEXT("App", "kFileNew", "&New");
inline constexpr Constant kFileQuit = KESTRUNE_TEXT("App", "kFileQuit", "&Quit");
inline constexpr Constant kFileOpen = KESTRUNE_TEXT("App", "kFileOpen", "&Open...");
inline constexpr Constant kFileOpenRecent = KESTRUNE_TEXT("App", "kFileOpenRecent", "Open &Recent");
inline constexpr Constant kFileSave = KESTRUNE_TEXT("App", "kFileSave", "&Save");
inline constexpr Constant kFileSaveAs = KESTRUNE_TEXT("App", "kFileSaveAs", "Save &As...");
inline constexpr Constant kPlanFilter = KESTRUNE_TEXT("App", "kPlanFilter", "Kestrune plans");
inline constexpr Constant kOpenFailed = KESTRUNE_TEXT("App", "kOpenFailed", "\"%1\" could not be opened: %2");
inline constexpr Constant kSaveChanges =
    KESTRUNE_TEXT("App", "kSaveChanges", "Save the changes to \"%1\" before closing?");
inline constexpr Constant kEditMenu = KESTRUNE_TEXT("App", "kEditMenu", "&Edit");
inline constexpr Constant kEditUndo = KESTRUNE_TEXT("App", "kEditUndo", "&Undo");
inline constexpr Constant kEditRedo = KESTRUNE_TEXT("App", "kEditRedo", "&Redo");
inline constexpr Constant kEditCut = KESTRUNE_TEXT("App", "kEditCut", "Cu&t");
inline constexpr Constant kEditCopy = KESTRUNE_TEXT("App", "kEditCopy", "&Copy");
inline constexpr Constant kEditPaste = KESTRUNE_TEXT("App", "kEditPaste", "&Paste");
inline constexpr Constant kEditClear = KESTRUNE_TEXT("App", "kEditClear", "&Delete");
inline constexpr Constant kEditSelectAll = KESTRUNE_TEXT("App", "kEditSelectAll", "Select &All");
inline constexpr Constant kHelpMenu = KESTRUNE_TEXT("App", "kHelpMenu", "&Help");
inline constexpr Constant kHelpUsage = KESTRUNE_TEXT("App", "kHelpUsage", "&Usage");
inline constexpr Constant kAppleAbout = KESTRUNE_TEXT("App", "kAppleAbout", "A&bout this App");

// MainWindow
inline constexpr Constant kHelpButton = KESTRUNE_TEXT("MainWindow", "kHelpButton", "Usage");
inline constexpr Constant kLabelText0 = KESTRUNE_TEXT("MainWindow", "kLabelText0", "Principal:");
inline constexpr Constant kLabelText1 = KESTRUNE_TEXT("MainWindow", "kLabelText1", "Rate:");
inline constexpr Constant kLabelText2 = KESTRUNE_TEXT("MainWindow", "kLabelText2", "Times:");
inline constexpr Constant kLabelText3 = KESTRUNE_TEXT("MainWindow", "kLabelText3", "PayStart:");
inline constexpr Constant kLabelText7 = KESTRUNE_TEXT("MainWindow", "kLabelText7", "Selection:");
inline constexpr Constant kLabelText8 = KESTRUNE_TEXT("MainWindow", "kLabelText8", "Interest:");
inline constexpr Constant kLabelText9 = KESTRUNE_TEXT("MainWindow", "kLabelText9", "First:");
inline constexpr Constant kLabel9tip = KESTRUNE_TEXT("MainWindow", "kLabel9tip", "First:");
inline constexpr Constant kLabelText10 = KESTRUNE_TEXT("MainWindow", "kLabelText10", "Pay off:");
inline constexpr Constant kLabelText11 = KESTRUNE_TEXT("MainWindow", "kLabelText11", "Borrow:");
inline constexpr Constant kYear = KESTRUNE_TEXT("MainWindow", "kYear", "/");
inline constexpr Constant kMonth = KESTRUNE_TEXT("MainWindow", "kMonth", "/");
inline constexpr Constant kDay = KESTRUNE_TEXT("MainWindow", "kDay", "");
inline constexpr Constant kDay_th = KESTRUNE_TEXT("MainWindow", "kDay_th", "th");
inline constexpr Constant kRekiCombination =
    KESTRUNE_TEXT("MainWindow", "kRekiCombination", "XstCal,Showa,Heisei,Reiwa,XC<->JC");
inline constexpr Constant kRekiXst = KESTRUNE_TEXT("MainWindow", "kRekiXst", "XstCal");
inline constexpr Constant kRekiS = KESTRUNE_TEXT("MainWindow", "kRekiS", "Showa");
inline constexpr Constant kRekiH = KESTRUNE_TEXT("MainWindow", "kRekiH", "Heisei");
inline constexpr Constant kRekiR = KESTRUNE_TEXT("MainWindow", "kRekiR", "Reiwa");
inline constexpr Constant kNext = KESTRUNE_TEXT("MainWindow", "kNext", "Next");
inline constexpr Constant k2After = KESTRUNE_TEXT("MainWindow", "k2After", "2After");
inline constexpr Constant k3After = KESTRUNE_TEXT("MainWindow", "k3After", "3After");
inline constexpr Constant kSelectAll = KESTRUNE_TEXT("MainWindow", "kSelectAll", "Select All");
inline constexpr Constant kDeselectAll = KESTRUNE_TEXT("MainWindow", "kDeselectAll", "Deselect All");
inline constexpr Constant kGankin = KESTRUNE_TEXT("MainWindow", "kGankin", "Equal principal ");
inline constexpr Constant kGanri = KESTRUNE_TEXT("MainWindow", "kGanri", "Flat payment ");
inline constexpr Constant kCulc = KESTRUNE_TEXT("MainWindow", "kCulc", "Culc");
inline constexpr Constant kHeader =
    KESTRUNE_TEXT("MainWindow", "kHeader", "No.\tRepayment\tAmount\tPrincipal\tInterest\tBalance");
inline constexpr Constant kNewNext = KESTRUNE_TEXT("MainWindow", "kNewNext", "Recombination");
inline constexpr Constant kNewNextTip =
    KESTRUNE_TEXT("MainWindow", "kNewNextTip",
                  "Move the rows below selected to another table. You can simulate refinancing by changing the "
                  "method in the new table.\n(Does not work for multi-line selection)");
inline constexpr Constant kShowPayoffButton = KESTRUNE_TEXT("MainWindow", "kShowPayoffButton", "Show until pay off");
inline constexpr Constant kShowPayoffTip = KESTRUNE_TEXT("MainWindow", "kShowPayoffTip", "Show all hidden parts");
inline constexpr Constant kHideBelowButton = KESTRUNE_TEXT("MainWindow", "kHideBelowButton", "Hide below");
inline constexpr Constant kHideBelowTip =
    KESTRUNE_TEXT("MainWindow", "kHideBelowTip", "Hide after selected row.\n(Does not work for multi-line selection)");

// The column of extra principal that a plan's rows carry.
inline constexpr Constant kPrepaidHeading = KESTRUNE_TEXT("MainWindow", "kPrepaidHeading", "Prepaid");
inline constexpr Constant kBonusHeading = KESTRUNE_TEXT("MainWindow", "kBonusHeading", "Bonus");
inline constexpr Constant kDeductionHeading = KESTRUNE_TEXT("MainWindow", "kDeductionHeading", "Deduction");
inline constexpr Constant kUnpaidHeading = KESTRUNE_TEXT("MainWindow", "kUnpaidHeading", "Unpaid interest");

// Names that assistive technology reads for controls whose label does not name them.
inline constexpr Constant kAccBorrowYear = KESTRUNE_TEXT("MainWindow", "kAccBorrowYear", "Borrowing year");
inline constexpr Constant kAccBorrowMonth = KESTRUNE_TEXT("MainWindow", "kAccBorrowMonth", "Borrowing month");
inline constexpr Constant kAccBorrowDay = KESTRUNE_TEXT("MainWindow", "kAccBorrowDay", "Borrowing day");
inline constexpr Constant kAccPayDay = KESTRUNE_TEXT("MainWindow", "kAccPayDay", "Pay day");
inline constexpr Constant kAccCalendar = KESTRUNE_TEXT("MainWindow", "kAccCalendar", "Calendar");
inline constexpr Constant kAccDelay = KESTRUNE_TEXT("MainWindow", "kAccDelay", "First payment");
inline constexpr Constant kAccMethod = KESTRUNE_TEXT("MainWindow", "kAccMethod", "Method");
inline constexpr Constant kAccTable = KESTRUNE_TEXT("MainWindow", "kAccTable", "Repayment schedule");

// HelpWindow
inline constexpr Constant kHelpText =
    KESTRUNE_TEXT("HelpWindow", "kHelpText",
                  "[Operation description]\n"
                  "\n"
                  "1. About “Repayment Start Date”\n"
                  "If the repayment start date is less than or equal to the borrowing date, repayment will start "
                  "in the following month. If it is larger, repayment will begin on that day of the month. If you "
                  "enter a value greater than 31, it will change to 31, which means that the last day of every "
                  "month is specified. Also, the “Next” pop-up menu may be the same month in the sense "
                  "that it is next. \"Two after\" is from the next month, and \"Three after\" is from two months "
                  "after the next, which corresponds to the case where there is an initial repayment grace period.\n"
                  "\n"
                  "2. About \"Reshuffle\"\n"
                  "Move the rows below selected row to another table. You can simulate refinancing by changing "
                  "the method in the new table.\n"
                  "\n"
                  "3. \"Select All\" button\n"
                  "Press this to select all rows. Originally, the total interest of the selected row is to be "
                  "displayed on the left, so if you press this button, the total interest paid for the entire "
                  "period will be displayed. Press this button again to cancel all line specifications. If you "
                  "copy a row with it selected, it can be pasted into spreadsheet software.");

// The Plan window: prepayments, rate changes and fees on the loan of a main window.
inline constexpr Constant kPlanMenu = KESTRUNE_TEXT("App", "kPlanMenu", "&Plan");
inline constexpr Constant kPlanItem = KESTRUNE_TEXT("App", "kPlanItem", "Prepayments and Rate Changes...");
inline constexpr Constant kPlanTitle = KESTRUNE_TEXT("PlanWindow", "kPlanTitle", "Plan: %1, %2 at %3 %, %4 payments");
// The kinds of event and the modes of a prepayment as the event list shows them, in the order of
// the tool's words "prepay", "rate", "fee" and "shorten", "reduce".
inline constexpr Constant kEventsHint =
    KESTRUNE_TEXT("PlanWindow", "kEventsHint",
                  "No events yet. Insert or Add adds a prepayment; Ctrl+V pastes lines such as\n"
                  "prepay 12 1,000,000 reduce every 12\nrate 61 1.5\nfee 61 33,000");
inline constexpr Constant kEventTips =
    KESTRUNE_TEXT("PlanWindow", "kEventTips",
                  "The payment the event goes with\tA prepayment, a new annual rate or a fee\t"
                  "The amount, or the new annual rate in %\t"
                  "For a prepayment: fewer payments (shorten) or a smaller payment (reduce)\t"
                  "For a prepayment: again every so many payments; empty for once");
inline constexpr Constant kReportDates =
    KESTRUNE_TEXT("PlanWindow", "kReportDates", "Borrowed on %1, paid on day %2 of each month");
inline constexpr Constant kTotal = KESTRUNE_TEXT("PlanWindow", "kTotal", "Total");
inline constexpr Constant kEventKinds = KESTRUNE_TEXT("PlanWindow", "kEventKinds", "prepay\trate\tfee");
inline constexpr Constant kPrepayModes = KESTRUNE_TEXT("PlanWindow", "kPrepayModes", "shorten\treduce");
inline constexpr Constant kEventHeader =
    KESTRUNE_TEXT("PlanWindow", "kEventHeader", "Payment\tKind\tValue\tMode\tEvery");
inline constexpr Constant kEventErrors = KESTRUNE_TEXT(
    "PlanWindow", "kEventErrors",
    "\tNot an event\tThe payment is outside the loan\tNot a number\tThe amount is negative\tEvery takes "
    "a count of payments from 1 to the count\tThe amount is beyond 9,007,199,254,740,992\tWith this event "
    "the plan's amounts go beyond 9,007,199,254,740,992");
inline constexpr Constant kAddEvent = KESTRUNE_TEXT("PlanWindow", "kAddEvent", "&Add");
inline constexpr Constant kRemoveEvent = KESTRUNE_TEXT("PlanWindow", "kRemoveEvent", "&Remove");
inline constexpr Constant kCopySchedule = KESTRUNE_TEXT("PlanWindow", "kCopySchedule", "&Copy Schedule");
inline constexpr Constant kSaveCsv = KESTRUNE_TEXT("PlanWindow", "kSaveCsv", "&Save as CSV...");
inline constexpr Constant kSaveCsvTip = KESTRUNE_TEXT(
    "PlanWindow", "kSaveCsvTip", "Saves the table shown: the schedule, the years with their totals, or the comparison");
inline constexpr Constant kPrint = KESTRUNE_TEXT("PlanWindow", "kPrint", "&Print...");
inline constexpr Constant kExportPdf = KESTRUNE_TEXT("PlanWindow", "kExportPdf", "E&xport as PDF...");
inline constexpr Constant kTabs = KESTRUNE_TEXT("PlanWindow", "kTabs", "Schedule\tYears\tChart\tCompare");
inline constexpr Constant kMeasure = KESTRUNE_TEXT("PlanWindow", "kMeasure", "Measure");
inline constexpr Constant kWithoutEvents = KESTRUNE_TEXT("PlanWindow", "kWithoutEvents", "Without events");
inline constexpr Constant kRefused = KESTRUNE_TEXT("PlanWindow", "kRefused", "refused");
inline constexpr Constant kScenarioLabel = KESTRUNE_TEXT("PlanWindow", "kScenarioLabel", "Scenari&o:");
inline constexpr Constant kNewScenario = KESTRUNE_TEXT("PlanWindow", "kNewScenario", "&New Scenario");
inline constexpr Constant kDuplicateScenario = KESTRUNE_TEXT("PlanWindow", "kDuplicateScenario", "D&uplicate");
inline constexpr Constant kRenameScenario = KESTRUNE_TEXT("PlanWindow", "kRenameScenario", "Rena&me...");
inline constexpr Constant kDeleteScenario = KESTRUNE_TEXT("PlanWindow", "kDeleteScenario", "De&lete Scenario");
inline constexpr Constant kScenarioName = KESTRUNE_TEXT("PlanWindow", "kScenarioName", "Scenario %1");
inline constexpr Constant kScenarioCopy = KESTRUNE_TEXT("PlanWindow", "kScenarioCopy", "%1 (copy)");
inline constexpr Constant kTotalNames =
    KESTRUNE_TEXT("PlanWindow", "kTotalNames",
                  "Payments\tTotal paid\tTotal interest\tTotal prepaid\tFees\tPay off\tInterest saved\tPayments "
                  "saved\tNet saving\tBreak-even payment\tUnpaid interest paid\tDeduction\tNet cost\tDeduction "
                  "lost");
inline constexpr Constant kYearsMonths = KESTRUNE_TEXT("PlanWindow", "kYearsMonths", "%1 (%2 years %3 months)");
// Why a plan has no break-even payment.
inline constexpr Constant kNoFees = KESTRUNE_TEXT("PlanWindow", "kNoFees", "no fees");
inline constexpr Constant kNotEarnedBack = KESTRUNE_TEXT("PlanWindow", "kNotEarnedBack", "not within the loan");
inline constexpr Constant kYearHeader = KESTRUNE_TEXT(
    "PlanWindow", "kYearHeader", "Year\tEra year\tPayments\tAmount\tPrincipal\tInterest\tPrepaid\tFees\tBalance");
inline constexpr Constant kChartNames = KESTRUNE_TEXT(
    "PlanWindow", "kChartNames", "Balance\tBalance without events\tInterest paid\tInterest paid without events\tDate");
inline constexpr Constant kPointer = KESTRUNE_TEXT("PlanWindow", "kPointer", "%4 — payment %1, %2: %3");
inline constexpr Constant kEventsTitle =
    KESTRUNE_TEXT("PlanWindow", "kEventsTitle", "Prepayments, rate changes and fees");
inline constexpr Constant kSaveFailed = KESTRUNE_TEXT("PlanWindow", "kSaveFailed", "\"%1\" could not be saved: %2");
inline constexpr Constant kPrintFailed = KESTRUNE_TEXT("PlanWindow", "kPrintFailed", "The plan could not be printed.");
inline constexpr Constant kReportFailed =
    KESTRUNE_TEXT("PlanWindow", "kReportFailed", "the report could not be written");
inline constexpr Constant kWritingReport = KESTRUNE_TEXT("PlanWindow", "kWritingReport", "Writing the report...");
inline constexpr Constant kCancel = KESTRUNE_TEXT("PlanWindow", "kCancel", "Cancel");
inline constexpr Constant kPasteRefused =
    KESTRUNE_TEXT("PlanWindow", "kPasteRefused", "The pasted text was not added: %1");
inline constexpr Constant kLineTooLong =
    KESTRUNE_TEXT("PlanWindow", "kLineTooLong", "line %1 is longer than %2 characters.");
inline constexpr Constant kTooManyLines = KESTRUNE_TEXT("PlanWindow", "kTooManyLines", "it has more than %1 lines.");
inline constexpr Constant kBadTermLine =
    KESTRUNE_TEXT("PlanWindow", "kBadTermLine", "line %1 sets a lender term wrongly: %2");
// The lender terms above the events.
inline constexpr Constant kTermsTitle = KESTRUNE_TEXT("PlanWindow", "kTermsTitle", "Lender terms");
inline constexpr Constant kInterestLabel = KESTRUNE_TEXT("PlanWindow", "kInterestLabel", "&Interest:");
inline constexpr Constant kInterestRules =
    KESTRUNE_TEXT("PlanWindow", "kInterestRules", "by days\tby months, as lenders count it");
inline constexpr Constant kRoundDown = KESTRUNE_TEXT("PlanWindow", "kRoundDown", "Round amounts &down to the yen");
inline constexpr Constant kBonusPart = KESTRUNE_TEXT("PlanWindow", "kBonusPart", "&Bonus part:");
inline constexpr Constant kBonusMonths = KESTRUNE_TEXT("PlanWindow", "kBonusMonths", "Bonus months");
inline constexpr Constant kReview = KESTRUNE_TEXT("PlanWindow", "kReview", "&Five-year and 125 % rules");
// The housing-loan tax deduction beside the figures.
inline constexpr Constant kDeductionTitle =
    KESTRUNE_TEXT("PlanWindow", "kDeductionTitle", "&Housing-loan tax deduction");
inline constexpr Constant kDeductionFields =
    KESTRUNE_TEXT("PlanWindow", "kDeductionFields",
                  "Rate\tYears\tCap on the balance\tFirst year\tLimit\tthe borrowing year\tthe taxes paid, if any");
inline constexpr Constant kDeductionNotes =
    KESTRUNE_TEXT("PlanWindow", "kDeductionNotes",
                  "No deduction: the term is shorter than ten years\tNo deduction from %1: the term is now shorter "
                  "than ten years\tThe deduction's rate, cap or limit can't be read");
// Why the terms are refused, by the engine's reason; the last where the bonus part can't be read.
inline constexpr Constant kTermErrors =
    KESTRUNE_TEXT("PlanWindow", "kTermErrors",
                  "\tThe bonus part is more than half the principal\tNo payment falls in the bonus months\tThe "
                  "five-year and 125 % rules are for a flat payment only\tThe bonus part takes an amount above 0 "
                  "and two different months");

// AboutWindow
inline constexpr Constant kCloseBtn = KESTRUNE_TEXT("AboutWindow", "kCloseBtn", "Close");

inline constexpr std::array kAllConstants{kAppName,        kAppName2,
                                          kFileOpen,       kFileOpenRecent,
                                          kFileSave,       kFileSaveAs,
                                          kPlanFilter,     kOpenFailed,
                                          kSaveChanges,    kScenarioLabel,
                                          kNewScenario,    kDuplicateScenario,
                                          kRenameScenario, kDeleteScenario,
                                          kScenarioName,   kScenarioCopy,
                                          kFileMenu,       kFileNew,
                                          kFileQuit,       kEditMenu,
                                          kEditUndo,       kEditRedo,
                                          kEditCut,        kEditCopy,
                                          kEditPaste,      kEditClear,
                                          kEditSelectAll,  kAppleAbout,
                                          kHelpMenu,       kHelpUsage,
                                          kHelpButton,     kLabelText0,
                                          kLabelText1,     kLabelText2,
                                          kLabelText3,     kLabelText7,
                                          kLabelText8,     kLabelText9,
                                          kLabel9tip,      kLabelText10,
                                          kLabelText11,    kYear,
                                          kMonth,          kDay,
                                          kDay_th,         kRekiCombination,
                                          kRekiXst,        kRekiS,
                                          kRekiH,          kRekiR,
                                          kNext,           k2After,
                                          k3After,         kSelectAll,
                                          kDeselectAll,    kGankin,
                                          kGanri,          kCulc,
                                          kHeader,         kNewNext,
                                          kNewNextTip,     kShowPayoffButton,
                                          kShowPayoffTip,  kHideBelowButton,
                                          kHideBelowTip,   kHelpText,
                                          kPrepaidHeading, kBonusHeading,
                                          kUnpaidHeading,  kDeductionHeading,
                                          kAccBorrowYear,  kAccBorrowMonth,
                                          kAccBorrowDay,   kAccPayDay,
                                          kAccCalendar,    kAccDelay,
                                          kAccMethod,      kAccTable,
                                          kCloseBtn,       kPlanMenu,
                                          kPlanItem,       kPlanTitle,
                                          kEventHeader,    kEventErrors,
                                          kEventKinds,     kPrepayModes,
                                          kTotal,          kAddEvent,
                                          kRemoveEvent,    kCopySchedule,
                                          kSaveCsv,        kSaveCsvTip,
                                          kPrint,          kExportPdf,
                                          kTabs,           kTotalNames,
                                          kYearsMonths,    kNoFees,
                                          kNotEarnedBack,  kYearHeader,
                                          kChartNames,     kPointer,
                                          kEventsTitle,    kSaveFailed,
                                          kPrintFailed,    kReportFailed,
                                          kWritingReport,  kCancel,
                                          kPasteRefused,   kLineTooLong,
                                          kTooManyLines,   kBadTermLine,
                                          kTermsTitle,     kInterestLabel,
                                          kInterestRules,  kRoundDown,
                                          kBonusPart,      kBonusMonths,
                                          kReview,         kTermErrors,
                                          kDeductionTitle, kDeductionFields,
                                          kDeductionNotes};

} // namespace strings

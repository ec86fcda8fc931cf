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

// App
inline constexpr Constant kAppName{"App", "kAppName", "Kestrune"};
inline constexpr Constant kAppName2{"App", "kAppName2", "Principal payment\nor Flat payment Calculation"};
inline constexpr Constant kFileMenu{"App", "kFileMenu", "File"};
inline constexpr Constant kFileNew{"App", "kFileNew", "New"};
inline constexpr Constant kFileQuit{"App", "kFileQuit", "Quit"};
inline constexpr Constant kEditMenu{"App", "kEditMenu", "Edit"};
inline constexpr Constant kEditUndo{"App", "kEditUndo", "Undo"};
inline constexpr Constant kEditRedo{"App", "kEditRedo", "Redo"};
inline constexpr Constant kEditCut{"App", "kEditCut", "Cut"};
inline constexpr Constant kEditCopy{"App", "kEditCopy", "Copy"};
inline constexpr Constant kEditPaste{"App", "kEditPaste", "Paste"};
inline constexpr Constant kEditClear{"App", "kEditClear", "Delete"};
inline constexpr Constant kEditSelectAll{"App", "kEditSelectAll", "Select All"};
inline constexpr Constant kAppleAbout{"App", "kAppleAbout", "About this App"};

// MainWindow
inline constexpr Constant kHelpButton{"MainWindow", "kHelpButton", "Usage"};
inline constexpr Constant kLabelText0{"MainWindow", "kLabelText0", "Principal:"};
inline constexpr Constant kLabelText1{"MainWindow", "kLabelText1", "Rate:"};
inline constexpr Constant kLabelText2{"MainWindow", "kLabelText2", "Times:"};
inline constexpr Constant kLabelText3{"MainWindow", "kLabelText3", "PayStart:"};
inline constexpr Constant kLabelText7{"MainWindow", "kLabelText7", "Selection:"};
inline constexpr Constant kLabelText8{"MainWindow", "kLabelText8", "Interest:"};
inline constexpr Constant kLabelText9{"MainWindow", "kLabelText9", "First:"};
inline constexpr Constant kLabel9tip{"MainWindow", "kLabel9tip", "First:"};
inline constexpr Constant kLabelText10{"MainWindow", "kLabelText10", "Pay off:"};
inline constexpr Constant kLabelText11{"MainWindow", "kLabelText11", "Borrow:"};
inline constexpr Constant kYear{"MainWindow", "kYear", "/"};
inline constexpr Constant kMonth{"MainWindow", "kMonth", "/"};
inline constexpr Constant kDay{"MainWindow", "kDay", ""};
inline constexpr Constant kDay_th{"MainWindow", "kDay_th", "th"};
inline constexpr Constant kRekiCombination{"MainWindow", "kRekiCombination", "XstCal,Showa,Heisei,Reiwa,XC<->JC"};
inline constexpr Constant kRekiXst{"MainWindow", "kRekiXst", "XstCal"};
inline constexpr Constant kRekiS{"MainWindow", "kRekiS", "Showa"};
inline constexpr Constant kRekiH{"MainWindow", "kRekiH", "Heisei"};
inline constexpr Constant kRekiR{"MainWindow", "kRekiR", "Reiwa"};
inline constexpr Constant kNext{"MainWindow", "kNext", "Next"};
inline constexpr Constant k2After{"MainWindow", "k2After", "2After"};
inline constexpr Constant k3After{"MainWindow", "k3After", "3After"};
inline constexpr Constant kSelectAll{"MainWindow", "kSelectAll", "Select All"};
inline constexpr Constant kDeselectAll{"MainWindow", "kDeselectAll", "Deselect All"};
inline constexpr Constant kGankin{"MainWindow", "kGankin", "Equal principal "};
inline constexpr Constant kGanri{"MainWindow", "kGanri", "Flat payment "};
inline constexpr Constant kCulc{"MainWindow", "kCulc", "Culc"};
inline constexpr Constant kHeader{"MainWindow", "kHeader", "No.\tRepayment\tAmount\tPrincipal\tInterest\tBalance"};
inline constexpr Constant kNewNext{"MainWindow", "kNewNext", "Recombination"};
inline constexpr Constant kNewNextTip{
    "MainWindow", "kNewNextTip",
    "Move the rows below selected to another table. You can simulate refinancing by changing the "
    "method in the new table.\n(Does not work for multi-line selection)"};
inline constexpr Constant kShowPayoffButton{"MainWindow", "kShowPayoffButton", "Show until pay off"};
inline constexpr Constant kShowPayoffTip{"MainWindow", "kShowPayoffTip", "Show all hidden parts"};
inline constexpr Constant kHideBelowButton{"MainWindow", "kHideBelowButton", "Hide below"};
inline constexpr Constant kHideBelowTip{"MainWindow", "kHideBelowTip",
                                        "Hide after selected row.\n(Does not work for multi-line selection)"};

// HelpWindow
inline constexpr Constant kHelpText{
    "HelpWindow", "kHelpText",
    "[Operation description]\n"
    "\n"
    "1. About \u201CRepayment Start Date\u201D\n"
    "If the repayment start date is less than or equal to the borrowing date, repayment will start "
    "in the following month. If it is larger, repayment will begin on that day of the month. If you "
    "enter a value greater than 31, it will change to 31, which means that the last day of every "
    "month is specified. Also, the \u201CNext\u201D pop-up menu may be the same month in the sense "
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
    "copy a row with it selected, it can be pasted into spreadsheet software."};

// AboutWindow
inline constexpr Constant kCloseBtn{"AboutWindow", "kCloseBtn", "Close"};

inline constexpr std::array kAllConstants{kAppName,       kAppName2,
                                          kFileMenu,      kFileNew,
                                          kFileQuit,      kEditMenu,
                                          kEditUndo,      kEditRedo,
                                          kEditCut,       kEditCopy,
                                          kEditPaste,     kEditClear,
                                          kEditSelectAll, kAppleAbout,
                                          kHelpButton,    kLabelText0,
                                          kLabelText1,    kLabelText2,
                                          kLabelText3,    kLabelText7,
                                          kLabelText8,    kLabelText9,
                                          kLabel9tip,     kLabelText10,
                                          kLabelText11,   kYear,
                                          kMonth,         kDay,
                                          kDay_th,        kRekiCombination,
                                          kRekiXst,       kRekiS,
                                          kRekiH,         kRekiR,
                                          kNext,          k2After,
                                          k3After,        kSelectAll,
                                          kDeselectAll,   kGankin,
                                          kGanri,         kCulc,
                                          kHeader,        kNewNext,
                                          kNewNextTip,    kShowPayoffButton,
                                          kShowPayoffTip, kHideBelowButton,
                                          kHideBelowTip,  kHelpText,
                                          kCloseBtn};

} // namespace strings

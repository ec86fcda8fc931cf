<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>AboutWindow</name>
    <message>
        <source>kCloseBtn</source>
        <comment>Close</comment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>App</name>
    <message>
        <source>kAppName</source>
        <comment>Kestrune</comment>
        <translation>Kestrune</translation>
    </message>
    <message>
        <source>kAppName2</source>
        <comment>Principal payment
or Flat payment Calculation</comment>
        <translation>元利均等返済・元金均等返済
の返済計算</translation>
    </message>
    <message>
        <source>kFileMenu</source>
        <comment>&amp;File</comment>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>kFileNew</source>
        <comment>&amp;New</comment>
        <translation>新規(&amp;N)</translation>
    </message>
    <message>
        <source>kFileQuit</source>
        <comment>&amp;Quit</comment>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>kEditMenu</source>
        <comment>&amp;Edit</comment>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>kEditUndo</source>
        <comment>&amp;Undo</comment>
        <translation>取り消す(&amp;U)</translation>
    </message>
    <message>
        <source>kEditRedo</source>
        <comment>&amp;Redo</comment>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>kEditCut</source>
        <comment>Cu&amp;t</comment>
        <translation>カット(&amp;T)</translation>
    </message>
    <message>
        <source>kEditCopy</source>
        <comment>&amp;Copy</comment>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>kEditPaste</source>
        <comment>&amp;Paste</comment>
        <translation>ペースト(&amp;P)</translation>
    </message>
    <message>
        <source>kEditClear</source>
        <comment>&amp;Delete</comment>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>kEditSelectAll</source>
        <comment>Select &amp;All</comment>
        <translation>すべてを選択(&amp;A)</translation>
    </message>
    <message>
        <source>kHelpMenu</source>
        <comment>&amp;Help</comment>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>kHelpUsage</source>
        <comment>&amp;Usage</comment>
        <translation>使い方(&amp;U)</translation>
    </message>
    <message>
        <source>kAppleAbout</source>
        <comment>A&amp;bout this App</comment>
        <translation>Kestrune について(&amp;B)</translation>
    </message>
    <message>
        <source>kPlanMenu</source>
        <comment>&amp;Plan</comment>
        <translation>プラン(&amp;P)</translation>
    </message>
    <message>
        <source>kPlanItem</source>
        <comment>Prepayments and Rate Changes...</comment>
        <translation>繰上返済と金利変更...</translation>
    </message>
    <message>
        <source>kFileOpen</source>
        <comment>&amp;Open...</comment>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>kFileOpenRecent</source>
        <comment>Open &amp;Recent</comment>
        <translation>最近使ったファイル(&amp;R)</translation>
    </message>
    <message>
        <source>kFileSave</source>
        <comment>&amp;Save</comment>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>kFileSaveAs</source>
        <comment>Save &amp;As...</comment>
        <translation>名前を付けて保存(&amp;A)...</translation>
    </message>
    <message>
        <source>kPlanFilter</source>
        <comment>Kestrune plans</comment>
        <translation>Kestrune の返済計画</translation>
    </message>
    <message>
        <source>kOpenFailed</source>
        <comment>&quot;%1&quot; could not be opened: %2</comment>
        <translation>“%1”を開けませんでした: %2</translation>
    </message>
    <message>
        <source>kSaveChanges</source>
        <comment>Save the changes to &quot;%1&quot; before closing?</comment>
        <translation>“%1”の変更を閉じる前に保存しますか?</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>kHelpText</source>
        <comment>[Operation description]

1. About “Repayment Start Date”
If the repayment start date is less than or equal to the borrowing date, repayment will start in the following month. If it is larger, repayment will begin on that day of the month. If you enter a value greater than 31, it will change to 31, which means that the last day of every month is specified. Also, the “Next” pop-up menu may be the same month in the sense that it is next. &quot;Two after&quot; is from the next month, and &quot;Three after&quot; is from two months after the next, which corresponds to the case where there is an initial repayment grace period.

2. About &quot;Reshuffle&quot;
Move the rows below selected row to another table. You can simulate refinancing by changing the method in the new table.

3. &quot;Select All&quot; button
Press this to select all rows. Originally, the total interest of the selected row is to be displayed on the left, so if you press this button, the total interest paid for the entire period will be displayed. Press this button again to cancel all line specifications. If you copy a row with it selected, it can be pasted into spreadsheet software.</comment>
        <translation>［操作の説明］

1. 「返済開始日」について
返済日が借入日と同じか、それより前の日なら、返済は翌月から始まります。後の日なら、その月のその日から始まります。31 より大きい値を入れると 31 になり、毎月末日を指定したことになります。また、ポップアップメニューの「次回」は、次に来る返済日という意味なので、借入と同じ月になることがあります。「2回目」は翌月から、「3回目」は翌々月からとなり、当初に返済の据置期間がある場合に当たります。

2. 「借り換え」について
選択した行より後の行を別の表に移します。新しい表で返済方法を変えると、借り換えの試算ができます。

3. 「全選択」ボタン
押すと、すべての行を選択します。左には選択した行の利息の合計が表示されるので、このボタンを押すと、全期間に支払う利息の総額が表示されます。もう一度押すと、行の選択をすべて解除します。行を選択した状態でコピーすると、表計算ソフトに貼り付けられます。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>kHelpButton</source>
        <comment>Usage</comment>
        <translation>使い方</translation>
    </message>
    <message>
        <source>kLabelText0</source>
        <comment>Principal:</comment>
        <translation>元金:</translation>
    </message>
    <message>
        <source>kLabelText1</source>
        <comment>Rate:</comment>
        <translation>年利:</translation>
    </message>
    <message>
        <source>kLabelText2</source>
        <comment>Times:</comment>
        <translation>回数:</translation>
    </message>
    <message>
        <source>kLabelText3</source>
        <comment>PayStart:</comment>
        <translation>返済開始:</translation>
    </message>
    <message>
        <source>kLabelText7</source>
        <comment>Selection:</comment>
        <translation>選択数:</translation>
    </message>
    <message>
        <source>kLabelText8</source>
        <comment>Interest:</comment>
        <translation>利息:</translation>
    </message>
    <message>
        <source>kLabelText9</source>
        <comment>First:</comment>
        <translation>先頭:</translation>
    </message>
    <message>
        <source>kLabel9tip</source>
        <comment>First:</comment>
        <translation>表の先頭に表示する回</translation>
    </message>
    <message>
        <source>kLabelText10</source>
        <comment>Pay off:</comment>
        <translation>完済日:</translation>
    </message>
    <message>
        <source>kLabelText11</source>
        <comment>Borrow:</comment>
        <translation>借入日:</translation>
    </message>
    <message>
        <source>kYear</source>
        <comment>/</comment>
        <translation>年</translation>
    </message>
    <message>
        <source>kMonth</source>
        <comment>/</comment>
        <translation>月</translation>
    </message>
    <message>
        <source>kDay</source>
        <translation>日</translation>
    </message>
    <message>
        <source>kDay_th</source>
        <comment>th</comment>
        <translation>日</translation>
    </message>
    <message>
        <source>kRekiCombination</source>
        <comment>XstCal,Showa,Heisei,Reiwa,XC&lt;-&gt;JC</comment>
        <translation>西暦,昭和,平成,令和,西暦⇔和暦</translation>
    </message>
    <message>
        <source>kRekiXst</source>
        <comment>XstCal</comment>
        <translation>西暦</translation>
    </message>
    <message>
        <source>kRekiS</source>
        <comment>Showa</comment>
        <translation>昭和</translation>
    </message>
    <message>
        <source>kRekiH</source>
        <comment>Heisei</comment>
        <translation>平成</translation>
    </message>
    <message>
        <source>kRekiR</source>
        <comment>Reiwa</comment>
        <translation>令和</translation>
    </message>
    <message>
        <source>kNext</source>
        <comment>Next</comment>
        <translation>次回</translation>
    </message>
    <message>
        <source>k2After</source>
        <comment>2After</comment>
        <translation>2回目</translation>
    </message>
    <message>
        <source>k3After</source>
        <comment>3After</comment>
        <translation>3回目</translation>
    </message>
    <message>
        <source>kSelectAll</source>
        <comment>Select All</comment>
        <translation>全選択</translation>
    </message>
    <message>
        <source>kDeselectAll</source>
        <comment>Deselect All</comment>
        <translation>全解除</translation>
    </message>
    <message>
        <source>kGankin</source>
        <comment>Equal principal </comment>
        <translation>元金均等 </translation>
    </message>
    <message>
        <source>kGanri</source>
        <comment>Flat payment </comment>
        <translation>元利均等 </translation>
    </message>
    <message>
        <source>kCulc</source>
        <comment>Culc</comment>
        <translation>計算</translation>
    </message>
    <message>
        <source>kHeader</source>
        <comment>No.	Repayment	Amount	Principal	Interest	Balance</comment>
        <translation>回	返済日	返済額	元金	利息	残高</translation>
    </message>
    <message>
        <source>kNewNext</source>
        <comment>Recombination</comment>
        <translation>借り換え</translation>
    </message>
    <message>
        <source>kNewNextTip</source>
        <comment>Move the rows below selected to another table. You can simulate refinancing by changing the method in the new table.
(Does not work for multi-line selection)</comment>
        <translation>選択した行より後の返済を別の表に移します。新しい表で返済方法を変えると、借り換えの試算ができます。
（複数行を選択しているときは使えません）</translation>
    </message>
    <message>
        <source>kShowPayoffButton</source>
        <comment>Show until pay off</comment>
        <translation>完済まで表示</translation>
    </message>
    <message>
        <source>kShowPayoffTip</source>
        <comment>Show all hidden parts</comment>
        <translation>隠した行をすべて表示します</translation>
    </message>
    <message>
        <source>kHideBelowButton</source>
        <comment>Hide below</comment>
        <translation>以降を隠す</translation>
    </message>
    <message>
        <source>kHideBelowTip</source>
        <comment>Hide after selected row.
(Does not work for multi-line selection)</comment>
        <translation>選択した行より後を隠します。
（複数行を選択しているときは使えません）</translation>
    </message>
    <message>
        <source>kAccBorrowYear</source>
        <comment>Borrowing year</comment>
        <translation>借入の年</translation>
    </message>
    <message>
        <source>kAccBorrowMonth</source>
        <comment>Borrowing month</comment>
        <translation>借入の月</translation>
    </message>
    <message>
        <source>kAccBorrowDay</source>
        <comment>Borrowing day</comment>
        <translation>借入の日</translation>
    </message>
    <message>
        <source>kAccPayDay</source>
        <comment>Pay day</comment>
        <translation>返済日</translation>
    </message>
    <message>
        <source>kAccCalendar</source>
        <comment>Calendar</comment>
        <translation>暦</translation>
    </message>
    <message>
        <source>kAccDelay</source>
        <comment>First payment</comment>
        <translation>初回返済</translation>
    </message>
    <message>
        <source>kAccMethod</source>
        <comment>Method</comment>
        <translation>返済方法</translation>
    </message>
    <message>
        <source>kAccTable</source>
        <comment>Repayment schedule</comment>
        <translation>返済予定表</translation>
    </message>
    <message>
        <source>kPrepaidHeading</source>
        <comment>Prepaid</comment>
        <translation>繰上返済</translation>
    </message>
    <message>
        <source>kBonusHeading</source>
        <comment>Bonus</comment>
        <translation>ボーナス</translation>
    </message>
    <message>
        <source>kUnpaidHeading</source>
        <comment>Unpaid interest</comment>
        <translation>未払利息</translation>
    </message>
    <message>
        <source>kDeductionHeading</source>
        <comment>Deduction</comment>
        <translation>住宅ローン控除</translation>
    </message>
</context>
<context>
    <name>PlanWindow</name>
    <message>
        <source>kPlanTitle</source>
        <comment>Plan: %1, %2 at %3 %, %4 payments</comment>
        <translation>プラン: %1、%2、年利 %3 %、%4 回</translation>
    </message>
    <message>
        <source>kReportDates</source>
        <comment>Borrowed on %1, paid on day %2 of each month</comment>
        <translation>借入日 %1、毎月 %2 日返済</translation>
    </message>
    <message>
        <source>kTotal</source>
        <comment>Total</comment>
        <translation>合計</translation>
    </message>
    <message>
        <source>kEventsHint</source>
        <comment>No events yet. Insert or Add adds a prepayment; Ctrl+V pastes lines such as
prepay 12 1,000,000 reduce every 12
rate 61 1.5
fee 61 33,000</comment>
        <translation>予定はまだありません。Insert キーか「追加」で繰上返済を加え、Ctrl+V で次のような行を貼り付けます:
prepay 12 1,000,000 reduce every 12
rate 61 1.5
fee 61 33,000</translation>
    </message>
    <message>
        <source>kEventTips</source>
        <comment>The payment the event goes with	A prepayment, a new annual rate or a fee	The amount, or the new annual rate in %	For a prepayment: fewer payments (shorten) or a smaller payment (reduce)	For a prepayment: again every so many payments; empty for once</comment>
        <translation>予定を行う返済回	繰上返済・金利変更・手数料	金額、または新しい年利 (%)	繰上返済で、回数を減らす (期間短縮) か返済額を減らす (返済額軽減) か	繰上返済を繰り返す間隔 (回)。空欄なら一度だけ</translation>
    </message>
    <message>
        <source>kEventKinds</source>
        <comment>prepay	rate	fee</comment>
        <translation>繰上返済	金利変更	手数料</translation>
    </message>
    <message>
        <source>kPrepayModes</source>
        <comment>shorten	reduce</comment>
        <translation>期間短縮	返済額軽減</translation>
    </message>
    <message>
        <source>kEventHeader</source>
        <comment>Payment	Kind	Value	Mode	Every</comment>
        <translation>回	種類	値	方式	間隔</translation>
    </message>
    <message>
        <source>kAddEvent</source>
        <comment>&amp;Add</comment>
        <translation>追加(&amp;A)</translation>
    </message>
    <message>
        <source>kRemoveEvent</source>
        <comment>&amp;Remove</comment>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>kCopySchedule</source>
        <comment>&amp;Copy Schedule</comment>
        <translation>返済表をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>kSaveCsv</source>
        <comment>&amp;Save as CSV...</comment>
        <translation>CSV で保存(&amp;S)...</translation>
    </message>
    <message>
        <source>kSaveCsvTip</source>
        <comment>Saves the table shown: the schedule, the years with their totals, or the comparison</comment>
        <translation>表示中の表 (返済表、年ごとの集計、比較) を CSV で保存します</translation>
    </message>
    <message>
        <source>kExportPdf</source>
        <comment>E&amp;xport as PDF...</comment>
        <translation>PDF に書き出し(&amp;X)...</translation>
    </message>
    <message>
        <source>kYearsMonths</source>
        <comment>%1 (%2 years %3 months)</comment>
        <translation>%1（%2 年 %3 か月）</translation>
    </message>
    <message>
        <source>kYearHeader</source>
        <comment>Year	Era year	Payments	Amount	Principal	Interest	Prepaid	Fees	Balance</comment>
        <translation>西暦	和暦	回数	返済額	元金	利息	繰上返済	手数料	残高</translation>
    </message>
    <message>
        <source>kChartNames</source>
        <comment>Balance	Balance without events	Interest paid	Interest paid without events	Date</comment>
        <translation>残高	予定なしの残高	支払利息累計	予定なしの支払利息累計	日付</translation>
    </message>
    <message>
        <source>kPointer</source>
        <comment>%4 — payment %1, %2: %3</comment>
        <translation>%4 — %1 回目 %2: %3</translation>
    </message>
    <message>
        <source>kEventsTitle</source>
        <comment>Prepayments, rate changes and fees</comment>
        <translation>繰上返済・金利変更・手数料</translation>
    </message>
    <message>
        <source>kEventErrors</source>
        <comment>	Not an event	The payment is outside the loan	Not a number	The amount is negative	Every takes a count of payments from 1 to the count	The amount is beyond 9,007,199,254,740,992	With this event the plan&apos;s amounts go beyond 9,007,199,254,740,992</comment>
        <translation>	予定として読めません	返済回がローンの範囲外です	数値ではありません	金額が負です	間隔は1から返済回数までの回数で指定します	金額が9,007,199,254,740,992を超えています	この予定で計画の金額が9,007,199,254,740,992を超えます</translation>
    </message>
    <message>
        <source>kSaveFailed</source>
        <comment>&quot;%1&quot; could not be saved: %2</comment>
        <translation>“%1”を保存できませんでした: %2</translation>
    </message>
    <message>
        <source>kPrintFailed</source>
        <comment>The plan could not be printed.</comment>
        <translation>計画を印刷できませんでした。</translation>
    </message>
    <message>
        <source>kReportFailed</source>
        <comment>the report could not be written</comment>
        <translation>報告書を書き出せませんでした</translation>
    </message>
    <message>
        <source>kWritingReport</source>
        <comment>Writing the report...</comment>
        <translation>報告書を書き出しています...</translation>
    </message>
    <message>
        <source>kCancel</source>
        <comment>Cancel</comment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>kPasteRefused</source>
        <comment>The pasted text was not added: %1</comment>
        <translation>貼り付けたテキストは追加されませんでした: %1</translation>
    </message>
    <message>
        <source>kLineTooLong</source>
        <comment>line %1 is longer than %2 characters.</comment>
        <translation>%1行目が%2文字を超えています。</translation>
    </message>
    <message>
        <source>kTooManyLines</source>
        <comment>it has more than %1 lines.</comment>
        <translation>%1行を超えています。</translation>
    </message>
    <message>
        <source>kPrint</source>
        <comment>&amp;Print...</comment>
        <translation>印刷(&amp;P)...</translation>
    </message>
    <message>
        <source>kNoFees</source>
        <comment>no fees</comment>
        <translation>手数料なし</translation>
    </message>
    <message>
        <source>kNotEarnedBack</source>
        <comment>not within the loan</comment>
        <translation>完済までに回収できません</translation>
    </message>
    <message>
        <source>kBadTermLine</source>
        <comment>line %1 sets a lender term wrongly: %2</comment>
        <translation>%1 行目の条件の指定が正しくありません: %2</translation>
    </message>
    <message>
        <source>kTermsTitle</source>
        <comment>Lender terms</comment>
        <translation>金融機関の条件</translation>
    </message>
    <message>
        <source>kInterestLabel</source>
        <comment>&amp;Interest:</comment>
        <translation>利息(&amp;I):</translation>
    </message>
    <message>
        <source>kInterestRules</source>
        <comment>by days	by months, as lenders count it</comment>
        <translation>日割り	月割り（金融機関の計算）</translation>
    </message>
    <message>
        <source>kRoundDown</source>
        <comment>Round amounts &amp;down to the yen</comment>
        <translation>円未満を切り捨てる(&amp;D)</translation>
    </message>
    <message>
        <source>kBonusPart</source>
        <comment>&amp;Bonus part:</comment>
        <translation>ボーナス返済分(&amp;B):</translation>
    </message>
    <message>
        <source>kBonusMonths</source>
        <comment>Bonus months</comment>
        <translation>ボーナス月</translation>
    </message>
    <message>
        <source>kReview</source>
        <comment>&amp;Five-year and 125 % rules</comment>
        <translation>5年ルール・125%ルール(&amp;F)</translation>
    </message>
    <message>
        <source>kTermErrors</source>
        <comment>	The bonus part is more than half the principal	No payment falls in the bonus months	The five-year and 125 % rules are for a flat payment only	The bonus part takes an amount above 0 and two different months</comment>
        <translation>	ボーナス返済分が元金の半分を超えています	ボーナス月に返済がありません	5年ルール・125%ルールは元利均等返済だけに使えます	ボーナス返済分には0より大きい金額と異なる2つの月を指定します</translation>
    </message>
    <message>
        <source>kTotalNames</source>
        <comment>Payments	Total paid	Total interest	Total prepaid	Fees	Pay off	Interest saved	Payments saved	Net saving	Break-even payment	Unpaid interest paid	Deduction	Net cost	Deduction lost</comment>
        <translation>返済回数	支払総額	利息総額	繰上返済総額	手数料	完済日	軽減利息	短縮回数	正味の軽減額	損益分岐の回	支払った未払利息	住宅ローン控除	実質負担額	減る控除額</translation>
    </message>
    <message>
        <source>kDeductionTitle</source>
        <comment>&amp;Housing-loan tax deduction</comment>
        <translation>住宅ローン控除(&amp;H)</translation>
    </message>
    <message>
        <source>kDeductionFields</source>
        <comment>Rate	Years	Cap on the balance	First year	Limit	the borrowing year	the taxes paid, if any</comment>
        <translation>控除率	控除期間（年）	借入限度額	入居年	控除上限	借入の年	納める税額（任意）</translation>
    </message>
    <message>
        <source>kDeductionNotes</source>
        <comment>No deduction: the term is shorter than ten years	No deduction from %1: the term is now shorter than ten years	The deduction&apos;s rate, cap or limit can&apos;t be read</comment>
        <translation>控除なし: 返済期間が10年未満です	%1 年から控除なし: 返済期間が10年未満になりました	控除率、借入限度額または控除上限が読めません</translation>
    </message>
    <message>
        <source>kScenarioLabel</source>
        <comment>Scenari&amp;o:</comment>
        <translation>シナリオ(&amp;O):</translation>
    </message>
    <message>
        <source>kNewScenario</source>
        <comment>&amp;New Scenario</comment>
        <translation>新しいシナリオ(&amp;N)</translation>
    </message>
    <message>
        <source>kDuplicateScenario</source>
        <comment>D&amp;uplicate</comment>
        <translation>複製(&amp;U)</translation>
    </message>
    <message>
        <source>kRenameScenario</source>
        <comment>Rena&amp;me...</comment>
        <translation>名前の変更(&amp;M)...</translation>
    </message>
    <message>
        <source>kDeleteScenario</source>
        <comment>De&amp;lete Scenario</comment>
        <translation>シナリオを削除(&amp;L)</translation>
    </message>
    <message>
        <source>kScenarioName</source>
        <comment>Scenario %1</comment>
        <translation>シナリオ %1</translation>
    </message>
    <message>
        <source>kScenarioCopy</source>
        <comment>%1 (copy)</comment>
        <translation>%1 のコピー</translation>
    </message>
    <message>
        <source>kTabs</source>
        <comment>Schedule	Years	Chart	Compare</comment>
        <translation>返済表	年ごと	グラフ	比較</translation>
    </message>
    <message>
        <source>kMeasure</source>
        <comment>Measure</comment>
        <translation>項目</translation>
    </message>
    <message>
        <source>kWithoutEvents</source>
        <comment>Without events</comment>
        <translation>イベントなし</translation>
    </message>
    <message>
        <source>kRefused</source>
        <comment>refused</comment>
        <translation>計算できません</translation>
    </message>
</context>
</TS>

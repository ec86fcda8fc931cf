<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>App</name>
    <message>
        <source>kAppName</source>
        <extracomment>Kestrune</extracomment>
        <translation>Kestrune</translation>
    </message>
    <message>
        <source>kAppName2</source>
        <extracomment>Principal payment
or Flat payment Calculation</extracomment>
        <translation>元利均等返済・元金均等返済
の返済計算</translation>
    </message>
    <message>
        <source>kFileMenu</source>
        <extracomment>File</extracomment>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>kFileNew</source>
        <extracomment>New</extracomment>
        <translation>新規</translation>
    </message>
    <message>
        <source>kFileQuit</source>
        <extracomment>Quit</extracomment>
        <translation>終了</translation>
    </message>
    <message>
        <source>kEditMenu</source>
        <extracomment>Edit</extracomment>
        <translation>編集</translation>
    </message>
    <message>
        <source>kEditUndo</source>
        <extracomment>Undo</extracomment>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>kEditRedo</source>
        <extracomment>Redo</extracomment>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>kEditCut</source>
        <extracomment>Cut</extracomment>
        <translation>カット</translation>
    </message>
    <message>
        <source>kEditCopy</source>
        <extracomment>Copy</extracomment>
        <translation>コピー</translation>
    </message>
    <message>
        <source>kEditPaste</source>
        <extracomment>Paste</extracomment>
        <translation>ペースト</translation>
    </message>
    <message>
        <source>kEditClear</source>
        <extracomment>Delete</extracomment>
        <translation>削除</translation>
    </message>
    <message>
        <source>kEditSelectAll</source>
        <extracomment>Select All</extracomment>
        <translation>すべてを選択</translation>
    </message>
    <message>
        <source>kAppleAbout</source>
        <extracomment>About this App</extracomment>
        <translation>Kestrune について</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>kHelpButton</source>
        <extracomment>Usage</extracomment>
        <translation>使い方</translation>
    </message>
    <message>
        <source>kLabelText0</source>
        <extracomment>Principal:</extracomment>
        <translation>元金:</translation>
    </message>
    <message>
        <source>kLabelText1</source>
        <extracomment>Rate:</extracomment>
        <translation>年利:</translation>
    </message>
    <message>
        <source>kLabelText2</source>
        <extracomment>Times:</extracomment>
        <translation>回数:</translation>
    </message>
    <message>
        <source>kLabelText3</source>
        <extracomment>PayStart:</extracomment>
        <translation>返済開始:</translation>
    </message>
    <message>
        <source>kLabelText7</source>
        <extracomment>Selection:</extracomment>
        <translation>選択数:</translation>
    </message>
    <message>
        <source>kLabelText8</source>
        <extracomment>Interest:</extracomment>
        <translation>利息:</translation>
    </message>
    <message>
        <source>kLabelText9</source>
        <extracomment>First:</extracomment>
        <translation>先頭:</translation>
    </message>
    <message>
        <source>kLabel9tip</source>
        <extracomment>First:</extracomment>
        <translation>表の先頭に表示する回</translation>
    </message>
    <message>
        <source>kLabelText10</source>
        <extracomment>Pay off:</extracomment>
        <translation>完済日:</translation>
    </message>
    <message>
        <source>kLabelText11</source>
        <extracomment>Borrow:</extracomment>
        <translation>借入日:</translation>
    </message>
    <message>
        <source>kYear</source>
        <extracomment>/</extracomment>
        <translation>年</translation>
    </message>
    <message>
        <source>kMonth</source>
        <extracomment>/</extracomment>
        <translation>月</translation>
    </message>
    <message>
        <source>kDay</source>
        <extracomment></extracomment>
        <translation>日</translation>
    </message>
    <message>
        <source>kDay_th</source>
        <extracomment>th</extracomment>
        <translation>日</translation>
    </message>
    <message>
        <source>kRekiCombination</source>
        <extracomment>XstCal,Showa,Heisei,Reiwa,XC&lt;-&gt;JC</extracomment>
        <translation>西暦,昭和,平成,令和,西暦⇔和暦</translation>
    </message>
    <message>
        <source>kRekiXst</source>
        <extracomment>XstCal</extracomment>
        <translation>西暦</translation>
    </message>
    <message>
        <source>kRekiS</source>
        <extracomment>Showa</extracomment>
        <translation>昭和</translation>
    </message>
    <message>
        <source>kRekiH</source>
        <extracomment>Heisei</extracomment>
        <translation>平成</translation>
    </message>
    <message>
        <source>kRekiR</source>
        <extracomment>Reiwa</extracomment>
        <translation>令和</translation>
    </message>
    <message>
        <source>kNext</source>
        <extracomment>Next</extracomment>
        <translation>次回</translation>
    </message>
    <message>
        <source>k2After</source>
        <extracomment>2After</extracomment>
        <translation>2回目</translation>
    </message>
    <message>
        <source>k3After</source>
        <extracomment>3After</extracomment>
        <translation>3回目</translation>
    </message>
    <message>
        <source>kSelectAll</source>
        <extracomment>Select All</extracomment>
        <translation>全選択</translation>
    </message>
    <message>
        <source>kDeselectAll</source>
        <extracomment>Deselect All</extracomment>
        <translation>全解除</translation>
    </message>
    <message>
        <source>kGankin</source>
        <extracomment>Equal principal </extracomment>
        <translation>元金均等 </translation>
    </message>
    <message>
        <source>kGanri</source>
        <extracomment>Flat payment </extracomment>
        <translation>元利均等 </translation>
    </message>
    <message>
        <source>kCulc</source>
        <extracomment>Culc</extracomment>
        <translation>計算</translation>
    </message>
    <message>
        <source>kHeader</source>
        <extracomment>No.	Repayment	Amount	Principal	Interest	Balance</extracomment>
        <translation>回	返済日	返済額	元金	利息	残高</translation>
    </message>
    <message>
        <source>kNewNext</source>
        <extracomment>Recombination</extracomment>
        <translation>借り換え</translation>
    </message>
    <message>
        <source>kNewNextTip</source>
        <extracomment>Move the rows below selected to another table. You can simulate refinancing by changing the method in the new table.
(Does not work for multi-line selection)</extracomment>
        <translation>選択した行より後の返済を別の表に移します。新しい表で返済方法を変えると、借り換えの試算ができます。
（複数行を選択しているときは使えません）</translation>
    </message>
    <message>
        <source>kShowPayoffButton</source>
        <extracomment>Show until pay off</extracomment>
        <translation>完済まで表示</translation>
    </message>
    <message>
        <source>kShowPayoffTip</source>
        <extracomment>Show all hidden parts</extracomment>
        <translation>隠した行をすべて表示します</translation>
    </message>
    <message>
        <source>kHideBelowButton</source>
        <extracomment>Hide below</extracomment>
        <translation>以降を隠す</translation>
    </message>
    <message>
        <source>kHideBelowTip</source>
        <extracomment>Hide after selected row.
(Does not work for multi-line selection)</extracomment>
        <translation>選択した行より後を隠します。
（複数行を選択しているときは使えません）</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>kHelpText</source>
        <extracomment>[Operation description]

1. About “Repayment Start Date”
If the repayment start date is less than or equal to the borrowing date, repayment will start in the following month. If it is larger, repayment will begin on that day of the month. If you enter a value greater than 31, it will change to 31, which means that the last day of every month is specified. Also, the “Next” pop-up menu may be the same month in the sense that it is next. "Two after" is from the next month, and "Three after" is from two months after the next, which corresponds to the case where there is an initial repayment grace period.

2. About "Reshuffle"
Move the rows below selected row to another table. You can simulate refinancing by changing the method in the new table.

3. "Select All" button
Press this to select all rows. Originally, the total interest of the selected row is to be displayed on the left, so if you press this button, the total interest paid for the entire period will be displayed. Press this button again to cancel all line specifications. If you copy a row with it selected, it can be pasted into spreadsheet software.</extracomment>
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
    <name>AboutWindow</name>
    <message>
        <source>kCloseBtn</source>
        <extracomment>Close</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
</TS>

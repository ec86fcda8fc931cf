# The calculation's rules as the schedule tool shows them (see formats.t for how a case reads).
# `loan` is the form's default loan borrowed on 15 March 2020, pay day 8, first payment 8 April;
# `rows` prints the number and date of each row listed.
% loan() { kestrune-schedule --era western --year 2020 --month 3 --day 15 --format tsv "$@"; }
% rows() { kestrune-schedule --format tsv "$@" | tail -n +2 | cut -f1,2 | tr '\t\n' ' |'; echo; }

# Worked examples of both methods: the first two and the last two payments.
$ loan --method flat | sed -n '2,3p;144,145p'
> 001	20.04.08	781,684	650,264	131,420	99,349,736
> 002	20.05.08	781,684	618,478	163,206	98,731,258
> 143	32.02.08	781,684	779,112	2,572	735,990
> 144	32.03.08	737,159	735,990	1,169	0
$ loan --method equal | sed -n '2p;145p'
> 001	20.04.08	825,864	694,444	131,420	99,305,556
> 144	32.03.08	695,611	694,508	1,103	0

# The date column shows the year of the era in force: the last month of Heisei and Reiwa 1 from
# May 2019; the last day of Showa and Heisei 1 from 8 January 1989; the first day of Showa.
$ rows --era heisei --year 30 --month 3 --day 15 --first 13 --last 14
> 013 31.04.08|014 01.05.08|
$ rows --era showa --year 63 --month 12 --day 10 --pay-day 7 --last 1
> 001 64.01.07|
$ rows --era showa --year 63 --month 12 --day 10 --pay-day 8 --last 1
> 001 01.01.08|
$ rows --era showa --year 1 --month 12 --day 1 --pay-day 25 --last 1
> 001 01.12.25|
$ rows --era western --year 1926 --month 12 --day 1 --pay-day 25 --last 1
> 001 26.12.25|
# Year 0 of an era is the year before its first, counted in it.
$ rows --era showa --year 0 --month 3 --day 15 --first 10 --last 10
> 010 01.01.08|
$ rows --era heisei --year 0 --month 3 --day 15 --last 1
> 001 00.04.08|
$ rows --era reiwa --year 0 --month 3 --day 15 --first 9 --last 9
> 009 00.12.08|

# The first payment follows the pay day and the delay (borrowed in 2023); beyond a month's last
# day it is that last day.
$ for f in "1 15 20 next" "1 15 15 next" "1 15 20 2after" "1 15 10 3after" "1 31 31 next" "2 28 31 next" "12 31 31 next" "12 20 8 3after" "12 30 31 3after"; do set -- $f; rows --era western --year 2023 --month $1 --day $2 --pay-day $3 --delay $4 --times 12 --last 1; done
> 001 23.01.20|
> 001 23.02.15|
> 001 23.02.20|
> 001 23.04.10|
> 001 23.02.28|
> 001 23.03.31|
> 001 24.01.31|
> 001 24.03.08|
> 001 24.02.29|
# The pay-off date, in the era of the form: from January, December of the same year.
$ loan --last 0 --format table | head -1; loan --era reiwa --year 2 --last 0 --format table | head -1
> Pay off: 2032 / 3 / 8 
> Pay off: Reiwa  14 / 3 / 8 
$ kestrune-schedule --era heisei --year 30 --month 3 --day 15 --times 12 --last 0 | head -1
> Pay off: Heisei  31 / 3 / 8 
$ kestrune-schedule --era western --year 2023 --month 12 --day 31 --pay-day 31 --times 2 --last 0 | head -1
> Pay off: 2024 / 2 / 29 
$ kestrune-schedule --era western --year 2022 --month 12 --day 15 --times 12 --last 0 | head -1
> Pay off: 2023 / 12 / 8 
# A count below 1 ends before the first payment: the month carries back.
$ kestrune-schedule --era western --year 2020 --month 3 --day 15 --times -2 --last 0 | head -1
> Pay off: 2020 / 1 / 8 
# A day below 1 is the first, a month past 12 carries into the next year, month 0 is December.
$ rows --era western --year 2023 --month 1 --day -5 --pay-day 8 --last 1
> 001 23.01.08|
$ rows --era western --year 2023 --month 13 --day 5 --pay-day 8 --last 1
> 001 24.01.08|
$ rows --era western --year 2023 --month 0 --day 5 --pay-day 8 --last 1
> 001 22.12.08|
$ rows --era reiwa --year 6 --month 2 --day 31 --pay-day 31 --last 1
> 001 06.03.31|

# The range listed: a first row of 0 lists from the first, a range past the last payment ends
# with it, one beyond it lists nothing; a part of the table is the same rows as the whole.
$ loan --first 10 --last 11 | cut -f1
> No.
> 010
> 011
$ loan --first -9223372036854775808 --last 2 | cut -f1
> No.
> 001
> 002
$ loan --first 0 --last 3 | cut -f1
> No.
> 001
> 002
> 003
$ loan --first 140 --last 150 | cut -f1
> No.
> 140
> 141
> 142
> 143
> 144
$ loan --first 150 | cut -f1
> No.
$ diff <(loan --method flat --first 1 --last 12 | tail -1) <(loan --method flat | sed -n 13p) && echo same
> same

# Refusals: a zero read from the raw text, and amounts a double can't hold exactly; a rate too
# small for the annuity formula; a negative principal is no zero.
$ loan --principal ,5
! kestrune-schedule: principal, rate and count must be non-zero
? 1
$ loan --principal -100 --times 12 --last 1
> No.	Repayment	Amount	Principal	Interest	Balance
> 001	20.04.08	-8	-8	0	-92
$ loan --method flat --rate 1e-20 --principal 100
! kestrune-schedule: amounts out of range
? 1
$ loan --method flat --principal 9007199254740992 --last 0 --times 144 && echo calculated
> No.	Repayment	Amount	Principal	Interest	Balance
> calculated
$ loan --method flat --principal 9007199254740994 --last 0
! kestrune-schedule: amounts out of range
? 1
$ loan --method flat --principal 9007199254740992 --times 1 --last 0
! kestrune-schedule: amounts out of range
? 1
$ loan --method flat --principal 9,007,199,254,740,993 --times 12 --rate 0.0001 --last 0
! kestrune-schedule: amounts out of range
? 1
$ loan --method flat --principal 9007199254740992.5 --times 12 --rate 0.0001 --last 0
! kestrune-schedule: amounts out of range
? 1

# Event lines, read and written back as the tool writes them.
$ printf 'prepay 12 1,000,000 reduce every 12\nprepay\t3\t500\nprepay 3 500 every 1\nrate 61 1.5\nfee 61 330000\nrate 1 1e300\nfee 1 9007199254740992\n' > e; kestrune-schedule --times 420 --events e --save-plan p.kestrune && sed -n '/"scenarios"/,$p' p.kestrune
>   "scenarios": [
>     {
>       "name": "Plan",
>       "terms": [],
>       "events": [
>         "prepay 12 1000000 reduce every 12",
>         "prepay 3 500 shorten",
>         "prepay 3 500 shorten every 1",
>         "rate 61 1.5",
>         "fee 61 330000",
>         "rate 1 1e+300",
>         "fee 1 9007199254740992"
>       ]
>     }
>   ]
> }
# Each wrong line is named, with a printable excerpt of it.
% bad() { printf '%s\n' "$1" | kestrune-schedule --times 420 --events - --last 0; }
$ bad 'prepay 421 100'
! kestrune-schedule: bad event: payment outside 1 to the count: prepay 421 100
! Try 'kestrune-schedule --help' for the options.
? 2
$ bad 'fee 3 -5'
! kestrune-schedule: bad event: negative amount: fee 3 -5
! Try 'kestrune-schedule --help' for the options.
? 2
$ bad 'rate 3 😀'
! kestrune-schedule: bad event: not a number: rate 3 😀
! Try 'kestrune-schedule --help' for the options.
? 2
$ bad 'prepay 3 100 sooner'
! kestrune-schedule: bad event: not an event: prepay 3 100 sooner
! Try 'kestrune-schedule --help' for the options.
? 2
$ bad 'prepay 3 100 every 0'
! kestrune-schedule: bad event: every takes a count of payments from 1 to the count: prepay 3 100 every 0
! Try 'kestrune-schedule --help' for the options.
? 2
$ bad 'prepay 1 1000 every 421'
! kestrune-schedule: bad event: every takes a count of payments from 1 to the count: prepay 1 1000 every 421
! Try 'kestrune-schedule --help' for the options.
? 2
$ bad 'prepay 1 1000 every 922337203685477580700000'
! kestrune-schedule: bad event: every takes a count of payments from 1 to the count: prepay 1 1000 every 92233720368547758070...
! Try 'kestrune-schedule --help' for the options.
? 2
$ bad 'fee 1 9007199254740993'
! kestrune-schedule: bad event: amount beyond 9,007,199,254,740,992: fee 1 9007199254740993
! Try 'kestrune-schedule --help' for the options.
? 2
$ bad 'prepay 1 1e300'
! kestrune-schedule: bad event: amount beyond 9,007,199,254,740,992: prepay 1 1e300
! Try 'kestrune-schedule --help' for the options.
? 2
$ bad "$(printf 'prepay 1 \033[31mred\377 \342\202\254')"
! kestrune-schedule: bad event: not a number: prepay 1 ?[31mred? €
! Try 'kestrune-schedule --help' for the options.
? 2
$ bad "$(printf 'fee 1 \302\205\302\240x')"
! kestrune-schedule: bad event: not a number: fee 1 ?? x
! Try 'kestrune-schedule --help' for the options.
? 2
# The texts' bounds: blank lines and notes skipped, a carriage return kept with its line; lines of
# 1,000 characters and 100,000 lines are read, and no more.
$ printf 'fee 1 1\n\n  # a note\r\nrate 2 1\r\nprepay 3 1' | kestrune-schedule --events - --save-plan p.kestrune && sed -n '/"scenarios"/,$p' p.kestrune
>   "scenarios": [
>     {
>       "name": "Plan",
>       "terms": [],
>       "events": [
>         "fee 1 1",
>         "rate 2 1",
>         "prepay 3 1 shorten"
>       ]
>     }
>   ]
> }
$ x=$(printf '%1000s' | tr ' ' x); printf 'fee 1 1\n%s\n%sy\nfee 2 2\n' "# $x" "$x" | kestrune-schedule --events -
! kestrune-schedule: cannot read events from standard input: line 2 is longer than 1,000 characters
! Try 'kestrune-schedule --help' for the options.
? 2
$ head -c 1048576 /dev/zero | kestrune-schedule --events -
! kestrune-schedule: cannot read events from standard input: line 1 is longer than 1,000 characters
! Try 'kestrune-schedule --help' for the options.
? 2
$ yes '#' | head -n 100000 | kestrune-schedule --events - --last 0 --times 1 && echo read
> Pay off: Reiwa  8 / 12 / 8 
>
> No.  Repayment  Amount  Principal  Interest  Balance
> read
$ yes '#' | head -n 100001 | kestrune-schedule --events -
! kestrune-schedule: cannot read events from standard input: more than 100,000 lines
! Try 'kestrune-schedule --help' for the options.
? 2
# The last payment of the longest loan takes its events.
$ kestrune-schedule --principal 1200 --rate 0.0001 --times 100000 --fee 100000:5 --totals --last 0 | grep Fees
> Fees: 5
# The event that makes a plan refused is named: a rate beyond a double, a fee that takes the
# total paid beyond 2^53.
$ kestrune-schedule --principal 1200 --rate 0.0001 --times 12 --prepay 1:5 --rate-change 2:1e300 --fee 3:1
! kestrune-schedule: amounts out of range from the event: rate 2 1e+300
? 1
$ kestrune-schedule --principal 1200 --rate 0.0001 --times 12 --fee 1:5,000,000,000,000,000 --fee 2:1 --fee 3:5,000,000,000,000,000
! kestrune-schedule: amounts out of range from the event: fee 3 5e+15
? 1

# Lender term lines and deduction lines, read and written back; a wrong one named.
$ printf 'interest monthly\n  rounding\tdown \ndeduction 1 1 9007199254740992\n' | kestrune-schedule --times 420 --events - --save-plan p.kestrune && sed -n '/"scenarios"/,$p' p.kestrune
>   "scenarios": [
>     {
>       "name": "Plan",
>       "terms": [
>         "interest monthly",
>         "rounding down"
>       ],
>       "deduction": "deduction 1 1 9007199254740992",
>       "events": []
>     }
>   ]
> }
% term() { printf '%s\n' "$@" | kestrune-schedule --times 420 --events - --save-plan p.kestrune && grep '"deduction"' p.kestrune; }
$ term 'interest weekly'
! kestrune-schedule: bad term: interest takes daily or monthly: interest weekly
! Try 'kestrune-schedule --help' for the options.
? 2
$ term 'rounding down now'
! kestrune-schedule: bad term: rounding takes nearest or down: rounding down now
! Try 'kestrune-schedule --help' for the options.
? 2
$ term 'rounding'
! kestrune-schedule: bad term: rounding takes nearest or down: rounding
! Try 'kestrune-schedule --help' for the options.
? 2
$ term 'review now'
! kestrune-schedule: bad term: review takes no value: review now
! Try 'kestrune-schedule --help' for the options.
? 2
$ term 'deduction'
>       "deduction": "deduction 0.7 13 30000000",
$ term 'deduction 1 100'
>       "deduction": "deduction 1 100 30000000",
$ term 'deduction 0.7 13 30,000,000 from 2025 limit 250,000'
>       "deduction": "deduction 0.7 13 30000000 from 2025 limit 250000",
$ term 'deduction limit 1'
>       "deduction": "deduction 0.7 13 30000000 limit 1",
$ term 'rounding down' 'rounding nearest' 'interest monthly' 'interest daily' deduction && grep '"terms"' p.kestrune
>       "deduction": "deduction 0.7 13 30000000",
>       "terms": [],
$ kestrune-schedule --times 420 --deduction 1:::9999 --save-plan p.kestrune && grep '"deduction"' p.kestrune
>       "deduction": "deduction 1 13 30000000 from 9999",
$ term 'deduction 1 1 9007199254740994'
! kestrune-schedule: bad term: deduction takes a rate, a count of years, a cap, "from" a year and "limit" an amount, all at least 0: deduction 1 1 9007199254740994
! Try 'kestrune-schedule --help' for the options.
? 2
$ term 'deduction 0.7 13.5'
! kestrune-schedule: bad term: deduction takes a rate, a count of years, a cap, "from" a year and "limit" an amount, all at least 0: deduction 0.7 13.5
! Try 'kestrune-schedule --help' for the options.
? 2
$ term 'deduction from 10000'
! kestrune-schedule: bad term: deduction takes a rate, a count of years, a cap, "from" a year and "limit" an amount, all at least 0: deduction from 10000
! Try 'kestrune-schedule --help' for the options.
? 2
$ term 'deduction 1 101'
! kestrune-schedule: bad term: deduction takes a rate, a count of years, a cap, "from" a year and "limit" an amount, all at least 0: deduction 1 101
! Try 'kestrune-schedule --help' for the options.
? 2
$ term 'deduction -1'
! kestrune-schedule: bad term: deduction takes a rate, a count of years, a cap, "from" a year and "limit" an amount, all at least 0: deduction -1
! Try 'kestrune-schedule --help' for the options.
? 2
$ term 'deduction from'
! kestrune-schedule: bad term: deduction takes a rate, a count of years, a cap, "from" a year and "limit" an amount, all at least 0: deduction from
! Try 'kestrune-schedule --help' for the options.
? 2
$ term 'deduction 1 2 3 4'
! kestrune-schedule: bad term: deduction takes a rate, a count of years, a cap, "from" a year and "limit" an amount, all at least 0: deduction 1 2 3 4
! Try 'kestrune-schedule --help' for the options.
? 2

# The break-even payment is the first whose interest saved so far meets the fees: a prepayment of
# 600,000 with payment 1 saves interest from payment 2 on, and a fee of exactly that saving is
# earned back with payment 2.
% tiny() { kestrune-schedule --era western --year 2020 --month 3 --day 15 --principal 1,200,000 --rate 1.5 --times 12 --format tsv "$@"; }
$ interest() { tiny "$@" --first 2 --last 2 | tail -1 | cut -f5 | tr -d ,; }; fee=$(( $(interest) - $(interest --prepay 1:600000) )); echo "fee $fee"; tiny --prepay 1:600000 --fee 1:$fee --totals --last 0 | grep Break; tiny --prepay 1:600000 --fee 1:$((fee + 1)) --totals --last 0 | grep Break
> fee 739
> Break-even payment	2 (2020 / 5 / 8 )
> Break-even payment	3 (2020 / 6 / 8 )

# 1,000,000 at 1.6 % in 3 payments from 2020-03-15, pay day 8, "2after": first payment 2020-05-08,
# one month and 23 days after. By hand, monthly: 1,000,000 x 1.6 % x (1/12 + 23/365) = 2,341.55;
# then 668,119 x 1.6 % / 12 = 890.83 (668,143 by days: 54 days at 1.6 % / 365.2422 = 2,365.55).
# The flat payment 334,222.62; equal principal 333,333.33, then 666,667 x 1.6 % / 12 = 888.89.
% short() { kestrune-schedule --principal 1,000,000 --rate 1.6 --times 3 --era western --year 2020 --month 3 --day 15 --delay 2after --format tsv "$@" | tail -n +2 | cut -f3-; }
$ short --method flat --rounding down
> 334,222	331,857	2,365	668,143
> 334,222	333,315	907	334,828
> 335,268	334,828	440	0
$ short --method flat --interest monthly
> 334,223	331,881	2,342	668,119
> 334,223	333,332	891	334,787
> 335,233	334,787	446	0
$ short --method flat --interest monthly --rounding down
> 334,222	331,881	2,341	668,119
> 334,222	333,332	890	334,787
> 335,233	334,787	446	0
$ short --method equal --interest monthly --rounding down
> 335,674	333,333	2,341	666,667
> 334,221	333,333	888	333,334
> 333,778	333,334	444	0

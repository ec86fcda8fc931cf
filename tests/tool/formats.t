# kestrune-schedule as a user runs it: each case is a command, then what it prints on standard
# output (">"), on standard error ("!") and its exit status ("?", where it is not 0). A command
# runs in bash, in a folder of its own, with kestrune-schedule on the PATH; a line of output that
# ends in \r ends in a carriage return. Lines after "%" are shell words that every later command
# of the file begins with.

# The form's defaults from 15 March 2020 by flat payment; by months and cut to the yen the second
# payment's interest is 99,349,823 x 2 % / 12 = 165,583.04 after a payment of 781,683.
$ kestrune-schedule --era western --year 2020 --month 3 --day 15 --method flat --last 1
> Pay off: 2032 / 3 / 8 
>
> No.  Repayment   Amount  Principal  Interest     Balance
> 001  20.04.08   781,684    650,264   131,420  99,349,736
$ kestrune-schedule --era western --year 2020 --month 3 --day 15 --method flat --interest monthly --rounding down --first 2 --last 2 --format json
> {"payoff":"2032 / 3 / 8 ","header":["No.","Repayment","Amount","Principal","Interest","Balance"],"rows":[["002","20.05.08","781,683","616,100","165,583","98,733,723"]],"terms":["interest monthly","rounding down"]}
$ diff <(kestrune-schedule --era=western --year=2020 --month=3 --day=15 --method=flat --last=1) <(kestrune-schedule --era western --year 2020 --month 3 --day 15 --method flat --last 1)
$ diff <(kestrune-schedule -h) <(kestrune-schedule --help) && kestrune-schedule --help
> usage: kestrune-schedule [options]
>
> Prints the repayment table of a loan, calculated from the texts given as a user would type
> them into the form. No field corrections are applied. Each option is given as
> "--option VALUE" or "--option=VALUE".
>
>   --principal TEXT   principal, commas allowed (default "100000000")
>   --rate TEXT        annual rate in percent (default "2.0")
>   --times TEXT       number of monthly payments, at most 100000 are walked (default "144")
>   --first TEXT       number of the first payment listed (default "1")
>   --last N           number of the last payment listed; negative or absent: to the end
>   --era ERA          western, showa, heisei or reiwa: the era of --year (default reiwa)
>   --year TEXT        borrowing year in that era (default: this year counted in that era,
>                      so that the borrowing date is today whichever era names it)
>   --month TEXT       borrowing month (default: this month)
>   --day TEXT         borrowing day (default: today)
>   --pay-day TEXT     day of the month of each payment; above 31 is the last day (default "8")
>   --delay DELAY      next, 2after or 3after: which pay day comes first (default next)
>   --method METHOD    flat (flat payment) or equal (equal principal, the default)
>   --format FORMAT    table (default), tsv, csv or json
>   --prepay N:AMOUNT[:shorten|reduce][:every=M]
>                      with payment N, AMOUNT more principal; shorten (the default) keeps the
>                      payment and ends the loan earlier, reduce keeps the count and lowers the
>                      payment; every=M repeats it every M payments
>   --rate-change N:RATE  the annual rate RATE from the period that ends with payment N
>   --fee N:AMOUNT     a cost paid with payment N (a refinancing or prepayment fee)
>   --interest RULE    daily (the default): each period's actual days at rate / 365.2422 a day;
>                      monthly, as lenders count: rate / 12 a month whatever its days, and the
>                      first period's whole months at rate / 12 and its days left at rate / 365
>   --rounding RULE    nearest (the default) or down: every amount computed is cut to the yen
>   --bonus AMOUNT[:M1,M2]  AMOUNT of the principal is a bonus part, repaid by payments made with
>                      the regular payments of months M1 and M2 (6 and 12 by default): its flat
>                      payment at rate / 2 a half year, or equal principal; a Bonus column shows them
>   --deduction [RATE[:YEARS[:CAP[:FROM[:LIMIT]]]]]
>                      the housing-loan tax deduction: each year from FROM (the borrowing year)
>                      for YEARS (13) years, min(the year-end balance, CAP (30,000,000)) x RATE
>                      (0.7 %), cut to 100 yen and to LIMIT (the taxes paid); none where the loan
>                      runs less than ten years. Any part may be empty for its default; with
>                      --totals and --by-year, the deduction and the net cost
>   --review           the five-year and 125 % rules of a variable rate (flat payment only): a
>                      rate change sets the payment anew only at payments 61, 121, ... (a bonus
>                      part's every 10 bonus payments), at most 1.25 times the one before; interest
>                      a payment doesn't cover is carried unpaid and paid with the last payment
>   --plan FILE        a plan document saved by Kestrune: its form, and the terms, deduction and
>                      events of its first scenario; the other options override the form and add
>                      to the scenario
>   --scenario NAME    with --plan, the scenario of that name
>   --compare          the figures of every scenario (the one the options make and, with --plan,
>                      the document's others) beside the loan without events, the best of each
>                      row marked with a star
>   --save-plan FILE   write the plan of the other options to FILE as a plan document that
>                      Kestrune opens, instead of printing it
>   --events FILE|-    events one a line, as "prepay 12 1000000 reduce every 12", "rate 61 1.5",
>                      "fee 61 330000", and terms, as "interest monthly", "rounding down",
>                      "bonus 9000000 6 12", "review", "deduction 0.7 13 30000000 from 2025
>                      limit 250000";
>                      blank lines and lines from # are skipped
>   --totals           after the table (in tsv and csv after a blank line), the totals and, with
>                      events, the savings against the same loan without them
>   --by-year          the figures of each calendar year instead of the rows
>   -h, --help         print this text
>
> An events text holds at most 100000 lines of at most 1000 characters.
>
> Exit status: 0 with the table printed; 1 when the calculation is refused (a zero principal,
> rate or count, or amounts beyond 2^53) or the output cannot be written; 2 for a bad option,
> term, event or events file.

# Today's year where no year is given, in every era.
$ kestrune-schedule --month 1 --day 1 --times 1 --format json --era western | grep -c "^{\"payoff\":\"$(date +%Y) / 1 / 8 \""
> 1
$ for era in showa heisei reiwa; do kestrune-schedule --month 1 --day 1 --times 1 --format json --era $era | grep -c "^{\"payoff\":\"Reiwa  $(( $(date +%Y) - 2018 )) / 1 / 8 \""; done
> 1
> 1
> 1

# 30,000,000 at 1.5 % over 420 payments with 1,000,000 prepaid every 60 payments.
$ kestrune-schedule --era western --year 2020 --month 3 --day 15 --principal 30,000,000 --rate 1.5 --times 420 --method flat --prepay 60:1,000,000:every=60 --totals --last 0
> Pay off: 2049 / 5 / 8 
>
> No.  Repayment  Amount  Principal  Interest  Prepaid  Balance
>
> Payments: 350
> Paid: 37,072,210
> Principal: 25,000,000
> Interest: 7,072,210
> Prepaid: 5,000,000
> Fees: 0
> Payoff: 2049 / 5 / 8 
> Interest saved: 1,493,928
> Payments saved: 70 (5 years 10 months)
> Net saving: 1,493,928
> Break-even payment: no fees
# Events from a file, from standard input or as options are the same plan; no events, the loan.
$ printf '# refinancing\nrate 61 0.9\n\nfee\t61\t330000\n' > events.txt; loan='--era western --year 2020 --month 3 --day 15 --principal 30,000,000 --rate 1.5 --times 420 --method flat --format json --last 0'; kestrune-schedule --rate-change 61:0.9 --fee=61:330000 $loan > options.json; diff options.json <(kestrune-schedule --events events.txt $loan) && diff options.json <(kestrune-schedule --events - $loan < events.txt) && diff <(kestrune-schedule $loan) <(kestrune-schedule --events - $loan < /dev/null) && cat options.json
> {"payoff":"2055 / 3 / 8 ","header":["No.","Repayment","Amount","Principal","Interest","Prepaid","Balance"],"rows":[],"totals":{"payments":"420","paid":"36,211,380","principal":"30,000,000","interest":"5,881,380","prepaid":"0","fees":"330,000","payoff":"2055 / 3 / 8 "},"savings":{"interest saved":"2,684,758","payments saved":"0 (0 years 0 months)","net saving":"2,354,758","break-even payment":"86 (2027 / 5 / 8 )"},"events":["rate 61 0.9","fee 61 330000"]}

# Refusals and bad options: a message on standard error, nothing on standard output.
$ kestrune-schedule --rate 0
! kestrune-schedule: principal, rate and count must be non-zero
? 1
$ kestrune-schedule --principal 1e400
! kestrune-schedule: amounts out of range
? 1
$ kestrune-schedule --principal 9007199254740993
! kestrune-schedule: amounts out of range
? 1
$ kestrune-schedule --rate-change 2:1e300
! kestrune-schedule: amounts out of range from the event: rate 2 1e+300
? 1
$ kestrune-schedule --era meiji
! kestrune-schedule: bad value for --era: meiji
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --era "$(printf '\033[31mred')"
! kestrune-schedule: bad value for --era: ?[31mred
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --last x
! kestrune-schedule: --last takes a whole number: x
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --frobnicate 1
! kestrune-schedule: unknown option: --frobnicate
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --rate
! kestrune-schedule: missing value for --rate
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --prepay 145:100
! kestrune-schedule: bad event: payment outside 1 to the count: prepay 145 100
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --prepay 1:1000:every=9223372036854775807
! kestrune-schedule: bad event: every takes a count of payments from 1 to the count: prepay 1 1000 every 9223372036854775807
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --bonus 1000:6,6
! kestrune-schedule: bad term: bonus takes an amount above 0 and two different months from 1 to 12: bonus 1000 6 6
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --bonus 50,000,001
! kestrune-schedule: bad term: the bonus part 50,000,001 is more than half the principal
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --times 2 --month 1 --bonus 1
! kestrune-schedule: bad term: no payment falls in month 6 or 12
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --review
! kestrune-schedule: bad term: the five-year and 125 % rules are for a flat payment only
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --deduction 1:2:3:2030:5:6
! kestrune-schedule: bad term: deduction takes a rate, a count of years, a cap, "from" a year and "limit" an amount, all at least 0: deduction 1 2 3 from 2030 limit 5 6
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --events /dev/zero
! kestrune-schedule: cannot read events from /dev/zero: line 1 is longer than 1,000 characters
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --events /
! kestrune-schedule: cannot read events from /: Is a directory
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --plan /dev/zero
! kestrune-schedule: cannot read the plan /dev/zero: larger than 16 MB
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --plan /dev/null
! kestrune-schedule: cannot read the plan /dev/null: not JSON: an error at line 1, column 1
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --scenario A
! kestrune-schedule: --scenario goes with --plan
! Try 'kestrune-schedule --help' for the options.
? 2
$ kestrune-schedule --save-plan /nonexistent/p
! kestrune-schedule: cannot save the plan to /nonexistent/p: No such file or directory
? 1
# Write errors are told; a closed pipe is none.
$ kestrune-schedule --times 100000 --format csv > /dev/full
! kestrune-schedule: cannot write output: No space left on device
? 1
$ kestrune-schedule >&-
! kestrune-schedule: cannot write output: Bad file descriptor
? 1
$ kestrune-schedule --times 100000 | head -c 10 > /dev/null

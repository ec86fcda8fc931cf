# Plans read whole in every format (see formats.t for how a case reads).

# 600,000 by equal principal at 3 % over 6 payments from Heisei 30-11-20, with 100,000 prepaid
# (shorten) with payment 2, 1.5 % from payment 3 and a fee of 2,000 with payment 4. By hand:
# 600,000 x 3 % / 365.2422 x 18 days = 887.08; 500,000 x 3 % / 365.2422 x 31 = 1,273.13; at 1.5 %
# 300,000 x 31 days = 381.93, 200,000 x 28 = 229.99, 100,000 x 31 = 127.32. 100,000 of principal a
# payment leaves 0 after payment 5: one payment saved. Heisei 31 runs to April: the loan ends in it.
$ kestrune-schedule --era heisei --year 30 --month 11 --day 20 --principal 600,000 --rate 3 --times 6 --method equal --prepay 2:100,000:shorten --rate-change 3:1.5 --fee 4:2,000 --totals
> Pay off: Heisei  31 / 4 / 8 
>
> No.  Repayment   Amount  Principal  Interest  Prepaid  Balance
> 001  30.12.08   100,887    100,000       887        0  500,000
> 002  31.01.08   101,273    100,000     1,273  100,000  300,000
> 003  31.02.08   100,382    100,000       382        0  200,000
> 004  31.03.08   100,230    100,000       230        0  100,000
> 005  31.04.08   100,127    100,000       127        0        0
>
> Payments: 5
> Paid: 604,899
> Principal: 500,000
> Interest: 2,899
> Prepaid: 100,000
> Fees: 2,000
> Payoff: Heisei  31 / 4 / 8 
> Interest saved: 1,725
> Payments saved: 1 (0 years 1 months)
> Net saving: -275
> Break-even payment: not within the loan
$ kestrune-schedule --era heisei --year 30 --month 11 --day 20 --principal 600,000 --rate 3 --times 6 --method equal --prepay 2:100,000:shorten --rate-change 3:1.5 --fee 4:2,000 --totals --last 0 --format csv
> No.,Repayment,Amount,Principal,Interest,Prepaid,Balance\r
> \r
> Payments,5\r
> Paid,"604,899"\r
> Principal,"500,000"\r
> Interest,"2,899"\r
> Prepaid,"100,000"\r
> Fees,"2,000"\r
> Payoff,Heisei  31 / 4 / 8 \r
> Interest saved,"1,725"\r
> Payments saved,1 (0 years 1 months)\r
> Net saving,-275\r
> Break-even payment,not within the loan\r
$ kestrune-schedule --era heisei --year 30 --month 11 --day 20 --principal 600,000 --rate 3 --times 6 --method equal --prepay 2:100,000:shorten --rate-change 3:1.5 --fee 4:2,000 --format tsv --first 4 --last -2
> No.	Repayment	Amount	Principal	Interest	Prepaid	Balance
> 004	31.03.08	100,230	100,000	230	0	100,000
> 005	31.04.08	100,127	100,000	127	0	0
$ kestrune-schedule --era heisei --year 30 --month 11 --day 20 --principal 600,000 --rate 3 --times 6 --method equal --prepay 2:100,000:shorten --rate-change 3:1.5 --fee 4:2,000 --by-year
> Year  Era year   Payments   Amount  Principal  Interest  Prepaid   Fees  Balance
> 2018  Heisei 30         1  100,887    100,000       887        0      0  500,000
> 2019  Heisei 31         4  402,012    400,000     2,012  100,000  2,000        0
$ kestrune-schedule --era heisei --year 30 --month 11 --day 20 --principal 600,000 --rate 3 --times 6 --method equal --prepay 2:100,000:shorten --rate-change 3:1.5 --fee 4:2,000 --by-year --format json
> {"payoff":"Heisei  31 / 4 / 8 ","header":["Year","Era year","Payments","Amount","Principal","Interest","Prepaid","Fees","Balance"],"rows":[],"totals":{"payments":"5","paid":"604,899","principal":"500,000","interest":"2,899","prepaid":"100,000","fees":"2,000","payoff":"Heisei  31 / 4 / 8 "},"savings":{"interest saved":"1,725","payments saved":"1 (0 years 1 months)","net saving":"-275","break-even payment":"not within the loan"},"events":["prepay 2 100000 shorten","rate 3 1.5","fee 4 2000"],"years":[["2018","Heisei 30","1","100,887","100,000","887","0","0","500,000"],["2019","Heisei 31","4","402,012","400,000","2,012","100,000","2,000","0"]]}

# The same plan saved as a document and read back, where standard input is closed too (the file
# takes its number); options on the command line override the form and add events.
$ plan='--era heisei --year 30 --month 11 --day 20 --principal 600,000 --rate 3 --times 6 --method equal --prepay 2:100,000:shorten --rate-change 3:1.5 --fee 4:2,000 --interest monthly --deduction --bonus 100,000'; kestrune-schedule $plan --save-plan p.kestrune && diff <(kestrune-schedule --plan p.kestrune --totals --by-year --format json <&-) <(kestrune-schedule $plan --totals --by-year --format json) && diff <(kestrune-schedule --plan=p.kestrune --times 5 --fee 5:1 --totals) <(kestrune-schedule $plan --times 5 --fee 5:1 --totals) && echo same
> same
# A document written by hand: scenario 借換, and every scenario compared (A with the options' events)
# beside the loan without events, the best of each measure starred; a refused scenario says so.
$ echo '{"format": "kestrune-plan", "version": 1, "form": {"principal": "600,000", "rate": "3", "times": "6", "era": "heisei", "year": "30", "month": "11", "day": "20"}, "scenarios": [{"name": "A"}, {"name": "借換", "events": ["fee 4 2,000"]}]}' > p.json; diff <(kestrune-schedule --plan p.json --scenario 借換 --totals) <(kestrune-schedule --era heisei --year 30 --month 11 --day 20 --principal 600,000 --rate 3 --times 6 --fee 4:2000 --totals) && kestrune-schedule --plan p.json --compare --format tsv --prepay 2:100,000 --rate-change 3:1.5 && kestrune-schedule --plan p.json --compare --format json --rate-change 2:1e300 --last 0
> Measure	A	借換	Without events
> Payments	5 *	6	6
> Payoff	Heisei  31 / 4 / 8  *	Reiwa  1 / 5 / 8 	Reiwa  1 / 5 / 8 
> Paid	602,899 *	606,624	604,624
> Interest	2,899 *	4,624	4,624
> Fees	0 *	2,000	0 *
> Deduction	0	0	0
> Net cost	2,899 *	6,624	4,624
> Interest saved	1,725 *	0	0
> Net saving	1,725 *	-2,000	0
> Break-even payment	no fees	not within the loan	no fees
> {"header":["Measure","A","借換","Without events"],"rows":[["Payments","refused","6","6"],["Payoff","refused","Reiwa  1 / 5 / 8 ","Reiwa  1 / 5 / 8 "],["Paid","refused","606,624","604,624"],["Interest","refused","4,624","4,624"],["Fees","refused","2,000","0"],["Deduction","refused","0","0"],["Net cost","refused","6,624","4,624"],["Interest saved","refused","0","0"],["Net saving","refused","-2,000","0"],["Break-even payment","refused","not within the loan","no fees"]],"best":[[],[],["Without events"],[],["Without events"],[],["Without events"],[],["Without events"],[]]}

# 1,200,000 at 2 % in 12 payments from 2020-03-15, 300,000 of it a bonus part. Flat, months 6
# and 12: the bonus payment 300,000 x 1.01^2 x 0.01 / (1.01^2 - 1) = 152,253.73, its interest
# 85 days at 2 % / 365.2422 = 1,396.34, leaving 149,142. The prepayment of 300,000 with payment 4
# goes 300,000 x 149,142 / 750,807 = 59,592.8 to it, and both payments are set anew. Equal
# principal by months, months 7 and 1: 150,000 a bonus payment, interest 300,000 x 2 % x
# (3 / 12 + 23 / 365) = 1,878.08 for 3 months and 23 days, then 150,000 x 2 % / 2 = 1,500.
$ kestrune-schedule --principal 1,200,000 --rate 2 --times 12 --era western --year 2020 --month 3 --day 15 --format tsv --method flat --bonus 300,000 --prepay 4:300,000:reduce
> No.	Repayment	Amount	Principal	Interest	Bonus	Prepaid	Balance
> 001	20.04.08	75,815	74,632	1,183	0	0	1,125,368
> 002	20.05.08	75,815	74,459	1,356	0	0	1,050,909
> 003	20.06.08	228,069	225,398	2,671	152,254	0	825,511
> 004	20.07.08	75,815	74,704	1,111	0	300,000	450,807
> 005	20.08.08	45,497	44,884	613	0	0	405,923
> 006	20.09.08	45,497	44,960	537	0	0	360,963
> 007	20.10.08	45,497	45,051	446	0	0	315,912
> 008	20.11.08	45,497	45,113	384	0	0	270,799
> 009	20.12.08	135,943	134,748	1,195	90,446	0	136,051
> 010	21.01.08	45,497	45,266	231	0	0	90,785
> 011	21.02.08	45,497	45,343	154	0	0	45,442
> 012	21.03.08	45,512	45,442	70	0	0	0
$ kestrune-schedule --principal 1,200,000 --rate 2 --times 12 --era western --year 2020 --month 3 --day 15 --format tsv --method equal --interest monthly --bonus=300,000:7,1 --first 3 --last 4
> No.	Repayment	Amount	Principal	Interest	Bonus	Balance
> 003	20.06.08	76,250	75,000	1,250	0	975,000
> 004	20.07.08	228,003	225,000	3,003	151,878	750,000

# 12,000,000 flat in 180 payments from 2020-04-08, interest by months under the five-year and
# 125 % rules. At 1 % the payment is 71,819; at 12 % from the first payment a month's interest is
# 120,000: no principal is paid and 48,181 a month is carried unpaid. Review 61 would set 172,165
# and is capped at 1.25 x 71,819 = 89,773.75; review 121, after a cap, again: 1.25 x 89,774 =
# 112,217.5. The last payment: 12,000,000 + 120,000 + 60 x 48,181 + 60 x 30,226 + 59 x 7,782.
$ kestrune-schedule --principal 12,000,000 --times 180 --era western --year 2020 --month 4 --day 8 --method flat --interest monthly --review --format tsv --rate 1 --rate-change 1:12 --first 60 --last 61
> No.	Repayment	Amount	Principal	Interest	Prepaid	Unpaid interest	Balance
> 060	25.04.08	71,819	0	71,819	0	2,890,860	12,000,000
> 061	25.05.08	89,774	0	89,774	0	2,921,086	12,000,000
$ kestrune-schedule --principal 12,000,000 --times 180 --era western --year 2020 --month 4 --day 8 --method flat --interest monthly --review --format tsv --rate 1 --rate-change 1:12 --first 120 --last 121
> No.	Repayment	Amount	Principal	Interest	Prepaid	Unpaid interest	Balance
> 120	30.04.08	89,774	0	89,774	0	4,704,420	12,000,000
> 121	30.05.08	112,218	0	112,218	0	4,712,202	12,000,000
$ kestrune-schedule --principal 12,000,000 --times 180 --era western --year 2020 --month 4 --day 8 --method flat --interest monthly --review --format tsv --rate 1 --rate-change 1:12 --first 180
> No.	Repayment	Amount	Principal	Interest	Prepaid	Unpaid interest	Balance
> 180	35.04.08	17,283,558	12,000,000	5,283,558	0	0	0
$ kestrune-schedule --principal 12,000,000 --times 180 --era western --year 2020 --month 4 --day 8 --method flat --interest monthly --review --format tsv --rate 1 --rate-change 1:12 --totals --last 0
> No.	Repayment	Amount	Principal	Interest	Prepaid	Unpaid interest	Balance
>
> Payments	180
> Paid	33,600,000
> Principal	12,000,000
> Interest	21,600,000
> Unpaid interest paid	5,163,558
> Prepaid	0
> Fees	0
> Payoff	2035 / 4 / 8 
> Interest saved	-20,672,509
> Payments saved	0 (0 years 0 months)
> Net saving	-20,672,509
> Break-even payment	no fees
# At 3 % (82,870 a payment) falling to 1 % with payment 30, review 61 lowers the payment to that
# of 8,082,900 over 120 payments at 1 %: 70,809.54.
$ kestrune-schedule --principal 12,000,000 --times 180 --era western --year 2020 --month 4 --day 8 --method flat --interest monthly --review --format tsv --rate 3 --rate-change 30:1 --first 60 --last 61
> No.	Repayment	Amount	Principal	Interest	Prepaid	Unpaid interest	Balance
> 060	25.04.08	82,870	76,071	6,799	0	0	8,082,900
> 061	25.05.08	70,810	64,074	6,736	0	0	8,018,826
# A shortened loan keeps its end when its payment is set anew. 1,200,000 flat at 12 % by months
# over 12 payments pays 106,619; 500,000 prepaid with payment 2 leaves 509,816, which 106,619 a
# month repays in ln(106,619 / (106,619 - 5,098.16)) / ln 1.01 = 4.92 payments: the loan now ends
# with payment 7. At 6 % from payment 4 the payment is 408,295 over the 4 payments left to it:
# 408,295 x 0.005 x 1.005^4 / (1.005^4 - 1) = 103,352.85; the last takes up the difference.
$ kestrune-schedule --principal 1,200,000 --rate 12 --times 12 --era western --year 2020 --month 4 --day 8 --method flat --interest monthly --prepay 2:500,000 --rate-change 4:6 --format tsv
> No.	Repayment	Amount	Principal	Interest	Prepaid	Balance
> 001	20.05.08	106,619	94,619	12,000	0	1,105,381
> 002	20.06.08	106,619	95,565	11,054	500,000	509,816
> 003	20.07.08	106,619	101,521	5,098	0	408,295
> 004	20.08.08	103,353	101,312	2,041	0	306,983
> 005	20.09.08	103,353	101,818	1,535	0	205,165
> 006	20.10.08	103,353	102,327	1,026	0	102,838
> 007	20.11.08	103,352	102,838	514	0	0

# 30,000,000 flat over 420 payments from 1 April 2025, with the default deduction (0.7 % of at most
# 30,000,000 for 13 years from 2025). At 0.2 %, 10,000,000 prepaid with payment 12 saves 577,412
# of interest but loses 850,600 of deduction (2026: 18,530,453 x 0.7 % = 129,713 cut to 129,700,
# against 199,800): a net loss of 273,188.
$ kestrune-schedule --era western --year 2025 --month 4 --day 1 --principal 30,000,000 --times 420 --method flat --prepay 12:10,000,000 --rate 0.2 --deduction --totals --last 0 --format tsv
> No.	Repayment	Amount	Principal	Interest	Prepaid	Balance
>
> Payments	277
> Paid	30,483,272
> Principal	20,000,000
> Interest	483,272
> Prepaid	10,000,000
> Fees	0
> Deduction	1,365,700
> Net cost	-882,428
> Payoff	2048 / 4 / 8 
> Interest saved	577,412
> Deduction lost	850,600
> Payments saved	143 (11 years 11 months)
> Net saving	-273,188
> Break-even payment	no fees
# At 0.5 %, 25,000,000 prepaid with payment 12 (April 2026) ends the loan within six years: no
# deduction from 2026; 2025 gives 29,401,184 x 0.7 % = 205,808, cut to 205,800.
$ kestrune-schedule --era western --year 2025 --month 4 --day 1 --principal 30,000,000 --times 420 --method flat --prepay 12:25,000,000 --rate 0.5 --deduction=:::2025: --by-year --totals --format tsv
> Year	Era year	Payments	Amount	Principal	Interest	Prepaid	Fees	Deduction	Balance
> 2025	2025	9	700,884	598,816	102,068	0	0	205,800	29,401,184
> 2026	2026	12	934,512	883,685	50,827	25,000,000	0	0	3,517,499
> 2027	2027	12	934,512	919,042	15,470	0	0	0	2,598,457
> 2028	2028	12	934,512	923,609	10,903	0	0	0	1,674,848
> 2029	2029	12	934,512	928,271	6,241	0	0	0	746,577
> 2030	2030	10	748,227	746,577	1,650	0	0	0	0
>
> Payments	67
> Paid	30,187,159
> Principal	5,000,000
> Interest	187,159
> Prepaid	25,000,000
> Fees	0
> Deduction	205,800
> Net cost	-18,641
> Payoff	2030 / 10 / 8 
> Deduction note	No deduction from 2026: the term is now shorter than ten years
> Interest saved	2,509,304
> Deduction lost	2,030,100
> Payments saved	353 (29 years 5 months)
> Net saving	479,204
> Break-even payment	no fees
# 19,000,000 prepaid in December 2025 leaves ten years; 4,000,000 more in January 2026 does not:
# no deduction from 2026, and 2025's kept.
$ kestrune-schedule --era western --year 2025 --month 4 --day 1 --principal 30,000,000 --times 420 --method flat --prepay 12:0 --prepay 9:19,000,000 --prepay 10:4,000,000 --rate 0.5 --deduction --totals --last 0 --format tsv
> No.	Repayment	Amount	Principal	Interest	Prepaid	Balance
>
> Payments	93
> Paid	30,217,344
> Principal	7,000,000
> Interest	217,344
> Prepaid	23,000,000
> Fees	0
> Deduction	72,800
> Net cost	144,544
> Payoff	2032 / 12 / 8 
> Deduction note	No deduction from 2026: the term is now shorter than ten years
> Interest saved	2,479,119
> Deduction lost	2,163,100
> Payments saved	327 (27 years 3 months)
> Net saving	316,019
> Break-even payment	no fees
# 119 payments: shorter than ten years from the start, with or without events.
$ kestrune-schedule --era western --year 2025 --month 4 --day 1 --principal 30,000,000 --times 420 --method flat --prepay 12:0 --rate 0.5 --times 119 --deduction --totals --last 0 --format tsv
> No.	Repayment	Amount	Principal	Interest	Prepaid	Balance
>
> Payments	119
> Paid	30,746,158
> Principal	30,000,000
> Interest	746,158
> Prepaid	0
> Fees	0
> Deduction	0
> Net cost	746,158
> Payoff	2035 / 2 / 8 
> Deduction note	No deduction: the term is shorter than ten years
> Interest saved	0
> Deduction lost	0
> Payments saved	0 (0 years 0 months)
> Net saving	0
> Break-even payment	no fees

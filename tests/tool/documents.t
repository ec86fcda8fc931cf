# Plan documents the schedule tool reads (see formats.t for how a case reads): what a damaged one
# is refused for, named by its place in the document; fields it doesn't know are left alone.
% plan() { printf '%s' "$1" > d.kestrune; kestrune-schedule --plan d.kestrune --last 0; }
% head='{"format": "kestrune-plan", "version": 1, '
$ plan ''
! kestrune-schedule: cannot read the plan d.kestrune: not JSON: an error at line 1, column 1
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan "$head"$'\n  "form": {,}'
! kestrune-schedule: cannot read the plan d.kestrune: not JSON: an error at line 2, column 12
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan '[1]'
! kestrune-schedule: cannot read the plan d.kestrune: not a plan document
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan '{"format": "kestrune-plan", "version": -1e400}'
! kestrune-schedule: cannot read the plan d.kestrune: not JSON: a number too large to read
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan '{"format": "kestrune-plan"}'
! kestrune-schedule: cannot read the plan d.kestrune: a plan document without a version it can read
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan '{"format": "kestrune-plan", "version": 2}'
! kestrune-schedule: cannot read the plan d.kestrune: made by a newer Kestrune (format version 2; this one reads 1)
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan "$head"'"form": {"rate": 2}}'
! kestrune-schedule: cannot read the plan d.kestrune: form.rate is not a text
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan "$head"'"form": {"era": "meiji"}}'
! kestrune-schedule: cannot read the plan d.kestrune: form.era is none of the words it takes
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan "$head"'"form": {"principal": "1\n2"}}'
! kestrune-schedule: cannot read the plan d.kestrune: form.principal holds more than 1,000 characters or a control character
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan "$head"'"scenarios": []}'
! kestrune-schedule: cannot read the plan d.kestrune: scenarios is not a list of at least one
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan "$head"'"scenarios": [{"events": [1]}]}'
! kestrune-schedule: cannot read the plan d.kestrune: scenarios[1].events[1] is not a text
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan "$head"'"scenarios": [{}, {"terms": ["rounding up"]}]}'
! kestrune-schedule: cannot read the plan d.kestrune: scenarios[2].terms[1]: rounding takes nearest or down: rounding up
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan "$head"'"scenarios": [{"terms": ["fee 1 1"]}]}'
! kestrune-schedule: cannot read the plan d.kestrune: scenarios[1].terms[1]: not a lender term
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan "$head"'"scenarios": [{"deduction": "deduction -1"}]}'
! kestrune-schedule: cannot read the plan d.kestrune: scenarios[1].deduction: deduction takes a rate, a count of years, a cap, "from" a year and "limit" an amount, all at least 0: deduction -1
! Try 'kestrune-schedule --help' for the options.
? 2
$ plan "$head"'"form": {"era": "western", "year": "2020", "month": "3", "day": "15"}, "scenarios": [{"name": "A", "colour": 3}], "saved by": "a newer one"}'
> Pay off: 2032 / 3 / 8 
>
> No.  Repayment  Amount  Principal  Interest  Balance

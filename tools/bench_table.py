#!/usr/bin/env python3
"""Makes a table of what the benchmarks print, a JSON object a line.

usage: bench_table.py LINES OUT.json [BEFORE.json]

Each row has what we take, what stands beside it, the ratio between them, and the ratio that is aimed at. The rows
are kept in OUT.json. With an earlier one, what became slower is told: a ratio that grew by more than a sixth, as
two runs on the same machine differ by less.
"""
import json
import sys

NOISE = 7 / 6


def ratio(row):
    return row['ours'] / row['theirs']


def name(row):
    return row['what'], row['beside']


def number(value):
    return f'{value:.2f}' if value < 100 else f'{value:.0f}'


def table(rows):
    lines = [('what', 'ours', 'theirs', '', 'beside', 'ratio', 'aim', '')]
    for row in rows:
        aim = row['aim']
        verdict = '' if not aim else 'met' if ratio(row) <= aim else 'NOT MET'
        lines.append((row['what'], number(row['ours']), number(row['theirs']), row['unit'], row['beside'],
                      f'{ratio(row):.2f}', f'{aim:.2f}' if aim else '', verdict))
    widths = [max(len(line[i]) for line in lines) for i in range(len(lines[0]))]
    right = {1, 2, 5, 6}
    for line in lines:
        cells = [c.rjust(w) if i in right else c.ljust(w) for i, (c, w) in enumerate(zip(line, widths))]
        print('  '.join(cells).rstrip())


def compare(rows, before):
    known = {name(row): ratio(row) for row in before}
    slower = [row for row in rows if name(row) in known and ratio(row) > known[name(row)] * NOISE]
    print(f'\n{len(slower)} of {len(rows)} rows became slower')
    for row in slower:
        print(f'  {row["what"]} beside {row["beside"]}: {known[name(row)]:.2f} became {ratio(row):.2f}')


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    with open(sys.argv[1], encoding='utf-8') as lines:
        rows = [json.loads(line) for line in lines if line.startswith('{')]
    table(rows)
    if len(sys.argv) == 4:
        with open(sys.argv[3], encoding='utf-8') as before:
            compare(rows, json.load(before))
    with open(sys.argv[2], 'w', encoding='utf-8') as out:
        json.dump(rows, out, indent=1)


if __name__ == '__main__':
    main()

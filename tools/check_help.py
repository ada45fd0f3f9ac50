#!/usr/bin/env python3
"""Checks the help: each language has the same anchors, pages and pictures, and the program's own anchors are there.

usage: check_help.py ROOT
"""
import html.parser
import pathlib
import re
import sys

faults = []


class Help(html.parser.HTMLParser):
    VOID = {'meta', 'img', 'br', 'link'}

    def __init__(self, path):
        super().__init__()
        self.path, self.anchors, self.links, self.pictures, self.open = path, [], [], [], []
        self.feed(path.read_text(encoding='utf-8'))
        self.close()
        for tag in self.open:
            self.fault(f'<{tag}> is never closed')
        for anchor in {a for a in self.anchors if self.anchors.count(a) > 1}:
            self.fault(f'the anchor {anchor} is there twice')
        for link in self.links:
            if not link.startswith('#') or link[1:] not in self.anchors:
                self.fault(f'the link {link} leads nowhere')
        for picture in self.pictures:
            if not (path.parent / picture).is_file():
                self.fault(f'there is no picture {picture}')

    def fault(self, what):
        faults.append(f'{self.path.name}:{self.getpos()[0]}: {what}')

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if tag not in self.VOID:
            self.open.append(tag)
        if 'name' in values and tag == 'a':
            self.anchors.append(values['name'])
        if 'href' in values:
            self.links.append(values['href'])
        if tag == 'img':
            self.pictures.append(values['src'])

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.fault(f'</{tag}> closes another element')


def anchors_of_the_program(root):
    anchors = set()
    for folder in ('app', 'appearance', 'controls', 'pages'):
        for source in (root / folder).rglob('*.cpp'):
            text = source.read_text(encoding='utf-8')
            anchors |= set(re.findall(r'L"(options_\w+)"', text))
            pages = re.findall(r'PageDescription\s+k\w+\s*=\s*\{\s*IDD_\w+,\s*L"(\w+)"', text)
            anchors |= {'options_' + page for page in pages}
    return anchors


def main():
    root = pathlib.Path(sys.argv[1])
    folder = root / 'shipped/help'
    wanted = anchors_of_the_program(root)
    if len(wanted) < 25:
        faults.append(f'only {len(wanted)} anchors were found in the program')
    helps = [Help(path) for path in sorted(folder.glob('*.htm'))]
    first = helps[0]
    for each in helps:
        for anchor in sorted(wanted - set(each.anchors)):
            faults.append(f'{each.path.name}: the program asks for {anchor}, which is not there')
        if each.anchors != first.anchors:
            faults.append(f'{each.path.name}: other anchors, or in another order, than {first.path.name}')
        if [pathlib.Path(p).name for p in each.pictures] != [pathlib.Path(p).name for p in first.pictures]:
            faults.append(f'{each.path.name}: other pictures than {first.path.name}')
    shown = {(folder / picture).resolve() for each in helps for picture in each.pictures}
    for picture in folder.rglob('*.png'):
        if picture.resolve() not in shown:
            faults.append(f'{picture.relative_to(folder)} is shown by no help')
    print('\n'.join(faults) or f'{len(helps)} languages, {len(first.anchors)} anchors, {len(wanted)} of them the program\'s')
    sys.exit(1 if faults else 0)


if __name__ == '__main__':
    main()

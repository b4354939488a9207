"""Every single mutation of a C++ file of this project: what a slip of the hand could have written instead.

A mutation is a Mutation(kind, start, end, text): the file's text from start to end is replaced. The file is split
into words by a small lexer, which is enough for code in one format: binary operators stand between blanks, and so
are told from templates, pointers and references.
"""
import re
from collections import namedtuple

Mutation = namedtuple('Mutation', 'kind start end text')
Word = namedtuple('Word', 'kind text start end')

LEXER = re.compile(r'''
    (?P<skip>\s+|//[^\n]*|\#[^\n]*)
  | (?P<text>"(?:\\.|[^"\\])*"|'(?:\\.|[^'\\])*')
  | (?P<number>0[xX][0-9a-fA-F']+|\d[\d']*(?:\.\d+)?[uUlLfF]*)
  | (?P<name>[A-Za-z_]\w*)
  | (?P<op><<|>>|<=|>=|==|!=|\+=|-=|\*=|/=|&&|\|\||\+\+|--|->|::|[-+*/%<>=!&|^~?:;,.(){}\[\]])
''', re.X)

OPERATORS = {'<': '<=', '<=': '<', '>': '>=', '>=': '>', '==': '!=', '!=': '==', '+': '-', '-': '+', '*': '/',
             '/': '*', '%': '*', '&&': '||', '||': '&&', '+=': '-=', '-=': '+='}
OPEN = {'(': ')', '{': '}', '[': ']'}
NO_STATEMENT = {'return', 'if', 'for', 'while', 'do', 'switch', 'case', 'default', 'break', 'continue', 'else',
                'const', 'constexpr', 'using', 'static_assert', 'static', 'namespace', 'struct', 'class', 'auto',
                'template', 'enum', 'inline', 'friend', 'public', 'private', 'std'}


def words_of(source):
    words, at = [], 0
    while at < len(source):
        match = LEXER.match(source, at)
        if match is None:
            at += 1
            continue
        if match.lastgroup != 'skip':
            words.append(Word(match.lastgroup, match.group(), match.start(), match.end()))
        at = match.end()
    return words


def closing(words, at):
    """The index of the word that closes the bracket at index at."""
    depth = 0
    for i in range(at, len(words)):
        if words[i].text in OPEN and words[i].kind == 'op':
            depth += 1
        elif words[i].text in OPEN.values() and words[i].kind == 'op':
            depth -= 1
            if depth == 0:
                return i
    return len(words) - 1


def between_blanks(source, word):
    return source[word.start - 1:word.start].isspace() and source[word.end:word.end + 1].isspace()


def operators(source, words):
    for word in words:
        if word.text in OPERATORS and word.kind == 'op' and between_blanks(source, word):
            yield Mutation('operator', word.start, word.end, OPERATORS[word.text])
        elif word.text == '!' and word.kind == 'op':
            yield Mutation('operator', word.start, word.end, '')


# Four whole numbers in braces are a place on the screen. It is looked at, not asserted.
PLACE = re.compile(r'\{\s*(-?\d+\s*,\s*){3}-?\d+\s*\}')


def constants(source, words):
    places = [match.span() for match in PLACE.finditer(source)]
    for word in words:
        if any(start < word.start < end for start, end in places):
            continue
        if word.text in ('true', 'false'):
            yield Mutation('constant', word.start, word.end, 'false' if word.text == 'true' else 'true')
        elif word.kind == 'number':
            plain = word.text.replace("'", '')
            if re.fullmatch(r'\d+', plain):
                yield Mutation('constant', word.start, word.end, str(int(plain) + 1))
                if int(plain) > 0:
                    yield Mutation('constant', word.start, word.end, str(int(plain) - 1))
            elif re.fullmatch(r'\d+\.\d+', plain):
                yield Mutation('constant', word.start, word.end, str(float(plain) * 1.25 + 0.01))


def conditions(source, words):
    for i, word in enumerate(words[:-1]):
        if word.text in ('if', 'while') and words[i + 1].text == '(':
            start, end = words[i + 1].end, words[closing(words, i + 1)].start
            if ';' not in source[start:end] and ' = ' not in source[start:end]:
                yield Mutation('condition', start, end, '!(' + source[start:end] + ')')


def statements_of(source, words):
    """Lists of (start, end) of the plain statements (assignments, calls) that follow each other in a block."""
    runs, run = [], []
    at = 0
    while at < len(words):
        fresh = at > 0 and words[at - 1].text in (';', '{', '}', ':')
        end = at
        if fresh and words[at].kind == 'name' and words[at].text not in NO_STATEMENT:
            while words[end].text != ';' and end < len(words) - 1 and words[end].text not in ('{', '}'):
                end = closing(words, end) if words[end].text in OPEN else end
                end += 1
            text = source[words[at].start:words[end].end]
            plain = words[end].text == ';' and re.match(r'[\w:.()\[\]>*-]+\s*([-+*/]?=|\(|\+\+|--|;)|[\w:.>-]+\(', text)
            if plain and not re.match(r'[\w:<>]+[&*]* \w+( =|;|\{|\()', text):
                run.append((words[at].start, words[end].end))
                at = end + 1
                continue
        runs.append(run)
        run = []
        at += 1
    runs.append(run)
    return [found for found in runs if found]


def statements(source, words):
    for run in statements_of(source, words):
        for start, end in run:
            yield Mutation('statement dropped', start, end, '{}')
        for (a, b), (c, d) in zip(run, run[1:]):
            if not independent(source[a:b], source[c:d]):
                yield Mutation('statements swapped', a, d, source[c:d] + source[b:c] + source[a:b])


# The toolkit's setters, what makes a screen come or go, cues, notes and handlers: none of them reads what the other wrote.
SHOWN = re.compile(r'(?P<what>[\w.:>\[\]()-]*?(\.|->)?(Set[A-Z]\w*|Show|ShowModal|Hide|Unload|OnClick|OnHover|Sound\w+|Add|Say|Fill\w+))\(')


def independent(one, other):
    """Whether the order of two statements says nothing: assignments that do not read each other's target, calls that
    only set, show, tell or announce something, on different things, and one of each when no call hides what is read."""
    shown, other_shown = SHOWN.match(one), SHOWN.match(other)
    if shown and other_shown:
        return shown.group('what') != other_shown.group('what')
    if other_shown:
        return independent(other, one)
    target, other_target = one.split(' ')[0], other.split(' ')[0]
    if shown:
        return one.count('(') == 1 and '(' not in other and other_target not in one
    return '(' not in one + other and target not in other and other_target not in one


def calls(source, words):
    """Two functions that are called after each other in one body change places."""
    found = []
    for i, word in enumerate(words[:-1]):
        if word.text == '}' and word.start > 0 and source[word.start - 1] == '\n':
            found = []
        called = word.kind == 'name' and words[i + 1].text == '(' and word.text[0].isupper()
        defined = called and source[source.rfind('\n', 0, word.start) + 1].isalpha()
        if called and not defined:
            for other in found[-1:]:
                if other.text != word.text:
                    yield Mutation('calls exchanged', other.start, word.end,
                                   word.text + source[other.end:word.start] + other.text)
            found.append(word)


def cells_of(words, at):
    """The (start, end) of what the commas of the braces at index at divide."""
    end = closing(words, at)
    cells, start, i = [], at + 1, at + 1
    while i <= end:
        if i == end or words[i].text == ',':
            if i > start:
                cells.append((words[start].start, words[i - 1].end))
            start = i + 1
        elif words[i].text in OPEN:
            i = closing(words, i)
        i += 1
    return cells


# Rows that begin with a name or a number of theirs are looked up by it; their order says nothing.
KEY = re.compile(r'\{\s*([\w:+ ]*::\w+|\d+|"[^"]*"|[A-Z]\w+)\s*,')


def tables(source, words):
    """Of each table of rows: a row dropped, two rows swapped, a cell taken from the row below."""
    at = 0
    while at < len(words):
        if words[at].text != '{' or words[at - 1].text not in ('=', ']', '{') and words[at - 1].kind != 'name':
            at += 1
            continue
        row_starts = [i for i in range(at + 1, closing(words, at))
                      if words[i].text == '{' and words[i - 1].text in ('{', ',')]
        rows = []
        for i in row_starts:
            if not rows or i > rows[-1][1]:
                rows.append((i, closing(words, i)))
        spans = [(words[a].start, words[b].end) for a, b in rows]
        if len(rows) < 2 or ';' in source[spans[0][0]:spans[-1][1]]:
            at += 1
            continue
        keyed = all(KEY.match(source[a:b]) for a, b in spans)
        for (a, b), (c, d) in zip(spans, spans[1:]):
            yield Mutation('row dropped', a, c, '')
            if not keyed:
                yield Mutation('rows swapped', a, d, source[c:d] + source[b:c] + source[a:b])
        cells = [cells_of(words, a) for a, _ in rows]
        for upper, lower in zip(cells, cells[1:]):
            for (a, b), (c, d) in zip(upper, lower):
                if source[a:b] != source[c:d]:
                    yield Mutation('cell changed', a, b, source[c:d])
        at = rows[-1][1]


def all_mutations(source):
    words = words_of(source)
    found = []
    for make in (operators, constants, conditions, statements, calls, tables):
        found += make(source, words)
    results = {source[:m.start] + m.text + source[m.end:]: m for m in reversed(found)}  # each result once
    return sorted(results.values())


def lines_of(source, mutation):
    """The lines it touches, before and after, each as one text."""
    first = source.rfind('\n', 0, mutation.start) + 1
    last = source.find('\n', mutation.end)
    before = source[first:last]
    after = source[first:mutation.start] + mutation.text + source[mutation.end:last]
    return ' '.join(before.split()), ' '.join(after.split())

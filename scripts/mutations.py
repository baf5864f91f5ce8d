"""The small wrong changes that scripts/mutate tries.

>>> for change in mutations_of("void f() {\\n    if (a < 1)\\n        b(a + 2, true);\\n}\\n"):
...     print(change.what, change.after.strip())
comparison if (a <= 1)
constant if (a < 2)
statement left out ;
operator b(a - 2, true);
constant b(a + 3, true);
constant b(a + 2, false);

Compiling is what takes the time, so all changes are built in at once, each
under a number, and `mutant::active` says which one holds:

>>> text = "double f(double a) {\\n    return a + 0.5;\\n}\\n"
>>> print(woven(text, enumerate(mutations_of(text), 1))[0].splitlines()[1].strip())
return a +mutant::plus(1)+ mutant::pick(2, 0.5, 0.500005);
"""

import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""
      (?P<comment>//[^\n]*|/\*.*?\*/)
    | (?P<directive>^[ \t]*\#(?:[^\n]*\\\n)*[^\n]*)
    | (?P<text>R"\((?:.*?)\)"|"(?:\\.|[^"\\\n])*")
    | (?P<character>'(?:\\.|[^'\\])+')
    | (?P<number>\b(?:0x[0-9a-fA-F']+|\d[\d']*(?:\.\d*)?(?:[eE][-+]?\d+)?)[a-zA-Z]*)
    | (?P<name>[A-Za-z_]\w*)
    | (?P<operator><=>|->\*|<<=|>>=|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)
    """,
    re.VERBOSE | re.MULTILINE | re.DOTALL,
)

# Binary operators, which stand between blanks: what takes their place, and how
# both are built in. The named operator stands between two of the same rank.
COMPARISONS = {"<": ("<=", "<{}>", "less"), "<=": ("<", "<{}>", "lessEqual"),
               ">": (">=", "<{}>", "greater"), ">=": (">", "<{}>", "greaterEqual"),
               "==": ("!=", "!={}!=", "equal"), "!=": ("==", "!={}!=", "unequal")}
OPERATORS = {"+": ("-", "+{}+", "plus"), "-": ("+", "-{}-", "minus"),
             "*": ("/", "*{}*", "times"), "/": ("*", "/{}/", "over"), "%": ("*", "%{}%", "modulo"),
             "&&": ("||", None, None), "||": ("&&", None, None), "+=": ("-=", None, None),
             "-=": ("+=", None, None), "*=": ("/=", None, None), "/=": ("*=", None, None)}
STEPS = {"++": "--", "--": "++"}
BOOLEANS = {"true": "false", "false": "true"}

# Statements that begin with one of these are neither swapped nor left out.
OTHER_STATEMENTS = {
    "return", "using", "namespace", "class", "struct", "enum", "template", "typedef", "extern",
    "static_assert", "public", "private", "protected", "case", "default", "throw", "try", "catch",
    "switch", "for", "while", "do", "friend", "delete", "continue", "else", "virtual", "explicit",
    "inline", "constexpr", "static", "const", "auto", "mutable", "noexcept", "requires", "operator",
    "asm",
}


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int

    @property
    def end(self):
        return self.start + len(self.text)


@dataclass(frozen=True)
class Change:
    """`text` in the place of what stands from `start` to `end`. `edits` say how it
    is built in beside others: (start, end, text for a number), or none if it
    cannot be. `run` are the statements in whose row two are swapped."""
    start: int
    end: int
    what: str
    text: str
    edits: tuple = ()
    run: tuple = ()


@dataclass(frozen=True)
class Mutation:
    """A change at its place. `before` and `after` are the whole lines."""
    change: Change
    line: int
    before: str
    after: str

    @property
    def what(self):
        return self.change.what

    def applied_to(self, source):
        return source[:self.change.start] + self.change.text + source[self.change.end:]

    def can_be_woven(self):
        return bool(self.change.edits or self.change.run)


@dataclass(frozen=True)
class Statement:
    """The tokens of one statement, its end mark included."""
    tokens: tuple

    @property
    def start(self):
        return self.tokens[0].start

    @property
    def end(self):
        return self.tokens[-1].end


def mutations_of(source):
    """All mutations of the text of a source, in the order of their places."""
    tokens = code_of(source)
    changes = token_changes(source, tokens) + statement_changes(source, tokens)
    found, seen = [], set()
    for change in sorted(changes, key=lambda change: (change.start, change.end)):
        place = change.start, change.end, change.text
        if source[change.start:change.end] != change.text and place not in seen:
            seen.add(place)
            found.append(mutation(source, change))
    return found


def mutation(source, change):
    first = source.rfind("\n", 0, change.start) + 1
    last = source.find("\n", change.end)
    last = len(source) if last < 0 else last
    after = source[first:change.start] + change.text + source[change.end:last]
    return Mutation(change, source.count("\n", 0, change.start) + 1, source[first:last], after)


def code_of(source):
    """The tokens that can be changed: no comments, no directives."""
    tokens = (Token(match.lastgroup, match.group(), match.start())
              for match in TOKEN.finditer(source) if not match.group().isspace())
    return [token for token in tokens if token.kind not in ("comment", "directive")]


# --- Changes of one token

def token_changes(source, tokens):
    rows = table_rows(tokens)
    changes = []
    for i, token in enumerate(tokens):
        before = tokens[i - 1] if i > 0 else Token("", "", 0)
        if token.kind == "number" and rows.get(i, True):
            what = "table entry" if i in rows else "constant"
            changes.append(constant(source, token.start, token.end, other_number(token.text), what))
        elif token.kind == "text" and before.text != "extern" and not is_text(tokens, i + 1):
            first = i
            while is_text(tokens, first - 1):
                first -= 1
            start = tokens[first].start
            changes.append(constant(source, start, token.end,
                                    source[start:token.start] + other_text(token.text)))
        elif token.text in BOOLEANS:
            changes.append(constant(source, token.start, token.end, BOOLEANS[token.text]))
        elif token.kind == "operator" and before.text != "operator":
            changes += operator_changes(source, tokens, i)
    return changes


def is_text(tokens, i):
    return 0 <= i < len(tokens) and tokens[i].kind == "text"


def constant(source, start, end, text, what="constant"):
    edit = start, end, lambda n: f"mutant::pick({n}, {source[start:end]}, {text})"
    line = source[source.rfind("\n", 0, start) + 1:start]
    compiler_needs_it = (source[start - 1:start] == "<" or source[end:end + 1] == ">"
                         or source[:start].endswith("case ") or "[[" in line
                         or is_compile_time(line))
    return Change(start, end, what, text, () if compiler_needs_it else (edit,))


def is_compile_time(line):
    """Whether the line defines a constant that is worked out before any change can be
    switched on."""
    return "static constexpr" in line or "inline constexpr" in line


def table_rows(tokens):
    """The numbers of rows of four, and whether each is to be changed: one
    component in each row, in turn, so that a table is not worked through four
    times."""
    chosen, row = {}, 0
    for i in range(len(tokens) - 8):
        texts = [token.text for token in tokens[i:i + 9]]
        numbers = [i + 1, i + 3, i + 5, i + 7]
        is_row = (texts[0] == "{" and texts[8] == "}" and texts[2:7:2] == [","] * 3
                  and all(tokens[n].kind == "number" for n in numbers))
        if is_row:
            chosen.update({n: k == row % 4 for k, n in enumerate(numbers)})
            row += 1
    return chosen


def other_number(text):
    """The next whole number, or a broken number that is greater by a
    hundred-thousandth."""
    digits = re.match(r"0x[0-9a-fA-F']+|[\d']+(?:\.\d*)?(?:[eE][-+]?\d+)?", text).group()
    suffix = text[len(digits):]
    plain = digits.replace("'", "")
    if plain.startswith("0x"):
        return hex(int(plain, 16) + 1) + suffix
    if plain.isdigit():
        return str(int(plain) + 1) + suffix
    value = float(plain)
    return repr(float(f"{value * (1 + 1e-5):.12g}") if value != 0 else 1e-5) + suffix


def other_text(text):
    return text[:-1] + 'x"'


def operator_changes(source, tokens, i):
    token = tokens[i]
    between_blanks = (source[token.start - 1:token.start].isspace()
                      and source[token.end:token.end + 1].isspace())
    for kind, known in (("comparison", COMPARISONS), ("operator", OPERATORS)):
        if between_blanks and token.text in known:
            other, pattern, name = known[token.text]
            edit = token.start, token.end, lambda n: pattern.format(f"mutant::{name}({n})")
            line = source[source.rfind("\n", 0, token.start) + 1:token.start]
            edits = (edit,) if name and not is_compile_time(line) else ()
            return [Change(token.start, token.end, kind, other, edits)]
    if token.text in STEPS:
        return [Change(token.start, token.end, "operator", STEPS[token.text])]
    if token.text == "!":
        edit = token.start, token.end, lambda n: f"mutant::is({n}) != !"
        return [Change(token.start, token.end, "operator", "", (edit,))]
    if token.text == "-" and not between_blanks:
        return [Change(token.start, token.end, "operator", "", sign_edits(source, token, tokens[i + 1]))]
    if token.text == "?":
        return choice_change(source, tokens, i)
    return []


def sign_edits(source, sign, operand):
    """A number stays one with its sign, whatever stands before the two."""
    is_number = source[operand.start].isdigit()
    first = sign.start, sign.end, lambda n: ("(" if is_number else "") + f"mutant::sign({n}) * "
    last = operand.end, operand.end, lambda n: ")"
    return (first, last) if is_number else (first,)


def choice_change(source, tokens, i):
    """The two results of `condition ? this : that`, exchanged."""
    colon = end = None
    depth = 0
    for token in tokens[i + 1:]:
        if depth == 0 and token.text == ":" and colon is None:
            colon = token
        elif depth == 0 and colon and token.text in (",", ";", ")", "}", "]", ":"):
            end = token
            break
        depth += {"(": 1, "[": 1, "{": 1, ")": -1, "]": -1, "}": -1}.get(token.text, 0)
    if colon is None or end is None:
        return []
    this = source[tokens[i].end:colon.start].strip()
    that = source[colon.end:end.start].strip()
    edits = ((tokens[i].end, tokens[i].end, lambda n: f" mutant::is({n}) ? ({that}) : ("),
             (colon.start, colon.start, lambda n: ") "),
             (colon.end, colon.end, lambda n: f" mutant::is({n}) ? ({this}) : ("),
             (end.start, end.start, lambda n: ")"))
    return [Change(tokens[i].end, end.start, "choice", f" {that} : {this}", edits)]


# --- Changes of statements

def statement_changes(source, tokens):
    changes = []
    for is_body, block in blocks_of(tokens):
        for statement in filter(None, block):
            changes += condition_change(source, statement)
            body = body_of(statement)
            if is_body and is_action(body):
                edit = body.start, body.start, lambda n: f"for (bool on = !mutant::is({n}); on; on = false) "
                weaves = body.tokens[0].text != "break"
                changes.append(Change(body.start, body.end, "statement left out", ";",
                                      (edit,) if weaves else ()))
        for run in runs_of(block, is_body):
            texts = tuple((each.start, each.end) for each in run)
            for first, second in zip(run, run[1:]):
                gap = source[first.end:second.start]
                swapped = source[second.start:second.end] + gap + source[first.start:first.end]
                changes.append(Change(first.start, second.end, "order of statements", swapped,
                                      run=texts if is_body else ()))
    return changes


def blocks_of(tokens):
    """The statements of each pair of braces and of the file, and whether they
    are those of a function. Statements on both sides of a block in braces have
    None between them."""
    finished, stack = [], [Braces(False, False)]
    for i, token in enumerate(tokens):
        if token.text == "}" and len(stack) > 1:
            inner = stack.pop()
            finished.append((inner.of_function, inner.statements))
            stack[-1].current.append(token)
            following = tokens[i + 1].text if i + 1 < len(tokens) else ""
            if not inner.are_value and following not in (";", ",", ")", ".", "->", "(", "}", "["):
                stack[-1].end_of_block()
            continue
        at = stack[-1]
        if token.text == "{":
            names = {each.text for each in at.current if each.kind == "name"}
            of_type = bool(names & {"class", "struct", "enum", "namespace", "union"})
            are_value = not of_type and begins_value(at, tokens[i - 1] if i > 0 else token)
            at.current.append(token)
            stack.append(Braces(not of_type, are_value))
            continue
        at.current.append(token)
        if token.text == ";" and depth_of(at.current) == 0:
            at.statements.append(Statement(tuple(at.current)))
            at.current = []
        elif token.text == ":" and at.current[0].text in LABELS:
            at.current = []
    return finished + [(False, stack[0].statements)]


LABELS = ("case", "default", "public", "private", "protected")


class Braces:
    """What stands in a pair of braces, as far as it is read."""

    def __init__(self, of_function, are_value):
        self.of_function = of_function
        self.are_value = are_value  # as in `Range{0, 1}`
        self.statements, self.current = [], []

    def end_of_block(self):
        self.statements.append(None)  # what stands before and behind it is no pair
        self.current = []


def begins_value(outer, before):
    """Whether braces behind a token hold a value and no statements."""
    if before.text == "{":
        return outer.are_value
    if before.kind == "name":
        return before.text not in {"else", "do", "try", "const", "override", "noexcept", "final", "mutable"}
    return before.text in ("=", ",", "(", ">", "?", ":", "+", "-", "*", "/", "==")


def depth_of(tokens):
    return sum({"(": 1, ")": -1}.get(token.text, 0) for token in tokens)


def condition_change(source, statement):
    """A condition without an operator of its own, turned round."""
    tokens = statement.tokens
    if len(tokens) < 3 or tokens[0].text != "if" or tokens[1].text != "(":
        return []
    close = closing(tokens, 1)
    condition = tokens[2:close]
    operators = {*COMPARISONS, "&&", "||", "!", "=", "{"} - {"<", ">"}
    if not condition or any(token.text in operators for token in condition):
        return []
    start, end = tokens[1].end, tokens[close].start
    if re.search(r" [<>] ", source[start:end]):
        return []
    edits = ((start, start, lambda n: f"mutant::is({n}) != bool("), (end, end, lambda n: ")"))
    return [Change(start, start, "condition", "!", edits)]


def closing(tokens, opening):
    depth = 0
    for i in range(opening, len(tokens)):
        depth += {"(": 1, ")": -1}.get(tokens[i].text, 0)
        if depth == 0:
            return i
    return len(tokens) - 1


def body_of(statement):
    """The statement behind `if (...)` and `for (...)`."""
    tokens = statement.tokens
    while len(tokens) > 2 and tokens[0].text in ("if", "for", "while") and tokens[1].text == "(":
        inner = tokens[closing(tokens, 1) + 1:]
        if not inner:
            break
        tokens = inner
    return Statement(tokens)


def is_action(statement):
    """A call, an assignment or a `break`, as against a declaration."""
    tokens = statement.tokens
    if tokens[0].text == "break":
        return True
    if len(tokens) < 3 or tokens[0].text in OTHER_STATEMENTS or tokens[0].kind == "text":
        return False
    if tokens[0].kind == "operator":
        return tokens[0].text in ("++", "--", "*", "(")
    return not is_declaration(tokens)


def is_declaration(tokens):
    """Whether a type stands in front of a name."""
    depth = 0
    for before, token in zip(tokens, tokens[1:]):
        if depth == 0 and token.text in ("(", "=", ";", "{", "[", "+=", "-=", "."):
            return False
        depth += {"<": 1, ">": -1, "(": 1, ")": -1}.get(token.text, 0)
        if token.kind == "name" and (before.kind == "name" or before.text in (">", "*", "&")):
            return True
    return False


def runs_of(block, is_body):
    """The longest rows of neighbours of which each two can be swapped."""
    runs, run = [], []
    for statement, following in zip([*block, None], [*block[1:], None, None]):
        has_else = following and following.tokens[0].text == "else"
        if statement and not has_else and (is_step(statement) if is_body else is_member(statement)):
            run.append(statement)
        else:
            runs.append(run)
            run = []
    return [run for run in runs if len(run) > 1]


def is_step(statement):
    """A statement whose place in the order can matter."""
    head = statement.tokens[0].text
    if head in ("if", "for"):
        return not any(token.text in ("{", "else") for token in statement.tokens)
    return head != "break" and is_action(statement)


def is_member(statement):
    """A declaration that registers itself where it is made."""
    return statement.tokens[0].text in ("TypedSlot", "VSource")


# --- All changes at once

def woven(source, numbered):
    """The source with the numbered mutations built in, the lines on which each
    one stands there, and the numbers of those that the compiler may not see:
    variables can be `constexpr` no longer; functions can, and show no change to
    the compiler. It can assert nothing any more."""
    edits, runs = [], {}
    for number, each in numbered:
        for start, end, text in each.change.edits:
            edits.append((start, end, 1, text(number), [number]))
        if each.change.run:
            runs.setdefault(each.change.run, []).append((number, each.change))
    for run, swaps in runs.items():
        edits += run_edits(source, run, swaps)
    quiet = []
    for match in re.finditer(r"^[ \t]*static_assert\([^;]*;", source if edits else "", re.MULTILINE):
        edits = [edit for edit in edits if not match.start() <= edit[0] < match.end()]
        edits.append((match.start(), match.end(), 0, "\n" * match.group().count("\n"), []))
    for match in re.finditer(r"^([ \t]*)constexpr ", source if edits else "", re.MULTILINE):
        if re.search(r"[({=;]", source[match.end():]).group() == "(":
            quiet.append((match.start(), end_of_function(source, match.end())))
        else:
            text = "const " if match.group(1) else "inline const "
            edits.append((match.end(1), match.end(), 0, text, []))
    result, at, lines, unseen = "", 0, {}, set()
    for start, end, _, text, numbers in sorted(edits, key=lambda edit: edit[:3]):
        if any(first <= start < last for first, last in quiet):
            text = text.replace("mutant::pick(", "mutant::quietPick(")
            unseen.update(numbers)
        result += source[at:start]
        first = result.count("\n") + 1
        result += text
        at = end
        for number in numbers:
            lines.setdefault(number, set()).update(range(first, result.count("\n") + 2))
    return result + source[at:], lines, unseen


def end_of_function(source, start):
    """Where the braces end that come next."""
    depth = 0
    for token in code_of(source[start:]):
        depth += {"{": 1, "}": -1}.get(token.text, 0)
        if token.text == "}" and depth == 0 or token.text == ";" and depth == 0:
            return start + token.end
    return len(source)


def run_edits(source, run, swaps):
    """`if (this swap) { the row so } else if (...) ... else { the row }`"""
    first, last = run[0][0], run[-1][1]
    head = ""
    for number, change in swaps:
        row = source[first:change.start] + change.text + source[change.end:last]
        head += f"if (mutant::is({number})) {{ {row} }} else "
    numbers = [number for number, _ in swaps]
    return [(first, first, 0, head + "{ ", numbers), (last, last, 2, " }", numbers)]

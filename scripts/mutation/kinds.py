# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

"""The kinds of mutations. Each is a function that yields (token, start, end, replacement) for every
place of a SourceText where it applies: what stands from `start` to `end` in the text becomes
`replacement`, and the line of `token` is that of the mutation. None changes the number of lines."""

import re

from mutation.source_text import CONTROLS

OTHER_SIGNS = {
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "==": ["!="], "!=": ["=="], "&&": ["||"], "||": ["&&"], "&": ["|"], "|": ["&"],
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["/"],
    "+=": ["-="], "-=": ["+="], "&=": ["|="], "|=": ["&="], "*=": ["/="], "/=": ["*="],
}
ASSIGNMENTS = {"=", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^=", "<<=", ">>=", "++", "--", "<<"}
JUMPS = {"break", "continue", "throw", "delete"}
NO_CALLS = CONTROLS | {"return", "sizeof", "decltype", "alignof", "constexpr", "noexcept", "operator"}
NO_RESULT = {"explicit", "constexpr", "inline", "virtual", "public", "private", "protected", ":"}
NOTHING = {"{}", "0", "false", "nullptr", "std::nullopt", '""'}
INTEGER = re.compile(r"(0[xX][\da-fA-F']+|0[bB][01']+|\d[\d']*)([uUlLzZ]*)")


def lines_of(text):
    return "\n" * text.count("\n")


def span(source, first, last):
    return source.tokens[first].start, source.tokens[last].end


def skip_template_arguments(source, i):
    """What follows the `>` of a `<` that stands without blanks; `i` where there is none."""
    depth = 0
    for j in range(i, min(i + 40, len(source.tokens))):
        depth += {"<": 1, ">": -1, ">>": -2}.get(source.at(j), 0)
        if depth <= 0:
            return j + 1
    return i


def end_of_chain(source, i):
    """What follows a chain of names, calls and indices that begins at `i`."""
    while source.at(i) in {"*", "++", "--", "::"}:
        i += 1
    wants_name = True
    while True:
        sign = source.at(i)
        if sign in {"(", "["}:
            i, wants_name = source.partner[i] + 1, False
        elif sign in {".", "->", "::"}:
            i, wants_name = i + 1, True
        elif sign == "<" and not source.is_spaced(i):
            i = skip_template_arguments(source, i)
        elif wants_name and source.token(i).kind == "name":
            i, wants_name = i + 1, False
        else:
            return i


def is_deletable(source, i):
    word = source.at(i)
    if word in JUMPS or (word == "return" and source.at(i + 1) == ";"):
        return True
    if word in NO_CALLS or word in {"using", "else", "do", "try", "case", "default"}:
        return False
    after = end_of_chain(source, i)
    return after > i and (source.at(after) in ASSIGNMENTS or source.at(after - 1) == ")" and
                          source.at(after) == ";" or source.at(i) in {"++", "--"})


def delete_statement(source):
    for i in range(len(source.tokens)):
        if source.starts_statement(i) and is_deletable(source, i):
            end = source.end_of_statement(i)
            start, stop = span(source, i, end)
            if source.at(end) == ";":
                yield i, start, stop, ";" + lines_of(source.text[start:stop])


def whole_condition(source, opened):
    """The bracket after `if` or `while` holds an expression and no declaration."""
    inside = range(opened + 1, source.partner[opened])
    return not any(source.at(j) in {"=", ";"} and source.parent[j] == opened for j in inside)


def start_of_choice(source, i):
    """Where the condition before a `?` begins."""
    opened = source.parent[i]
    while i - 1 > opened and not (source.parent[i - 1] == opened and source.at(i - 1) in
                                  ASSIGNMENTS | {"return", ",", ";", "?", ":", "=", "}"}):
        i -= 1
    return i


def negated(source, first, last):
    start, stop = span(source, first, last)
    return first, start, stop, f"!({source.text[start:stop]})"


def negate_condition(source):
    for i in range(len(source.tokens)):
        if source.at(i) in {"if", "while"} and source.at(i + 1) == "(" and whole_condition(source, i + 1):
            yield negated(source, i + 2, source.partner[i + 1] - 1)
        elif source.at(i) == "?":
            yield negated(source, start_of_choice(source, i), i - 1)
        elif source.at(i) == "!" and source.at(i - 1) != "operator":
            yield i, *span(source, i, i), ""


def joins_texts(source, i):
    return "string" in (source.token(i - 1).kind, source.token(i + 1).kind)


def swap_operator(source):
    for i, token in enumerate(source.tokens):
        if token.text in OTHER_SIGNS and source.is_spaced(i) and not joins_texts(source, i):
            for other in OTHER_SIGNS[token.text]:
                yield i, token.start, token.end, other
        elif token.text in {"++", "--"} and source.at(i - 1) != "operator":
            yield i, token.start, token.end, "--" if token.text == "++" else "++"


def neighbours(number):
    """An integer's neighbours; a fraction is made larger by one."""
    found = INTEGER.fullmatch(number)
    if not found:
        fraction = re.fullmatch(r"[\d.]+", number)
        return [str(float(number) + 1)] if fraction else []
    value = int(found[1].replace("'", ""), 8 if re.fullmatch("0[0-7']+", found[1]) else 0)
    return [f"{near}{found[2]}" for near in (value + 1, value - 1) if near >= 0]


def change_constant(source):
    for i, token in enumerate(source.tokens):
        if token.kind == "number":
            for other in neighbours(token.text):
                yield i, token.start, token.end, other
        elif token.text in {"true", "false"}:
            yield i, token.start, token.end, "false" if token.text == "true" else "true"


def is_call(source, i):
    return (source.at(i) == "(" and source.token(i - 1).kind == "name" and
            source.at(i - 1) not in NO_CALLS and source.block_of(i) != -1)


def drop_argument(source):
    """An argument, or what a member is given in a list, becomes nothing."""
    for i in range(len(source.tokens)):
        if not is_call(source, i) and not (source.at(i) == "{" and source.at(i + 1) == "."):
            continue
        for first, last in source.arguments(i):
            start, stop = span(source, first + 3 if source.at(i) == "{" else first, last)
            if source.text[start:stop] not in NOTHING:
                yield first, start, stop, "{}" + lines_of(source.text[start:stop])


def return_nothing(source):
    for i in range(len(source.tokens)):
        end = source.end_of_statement(i) if source.at(i) == "return" else i
        if end > i + 1 and source.between(i + 1, end - 1) not in NOTHING:
            start, stop = span(source, i + 1, end - 1)
            yield i, start, stop, "{}" + lines_of(source.text[start:stop])


def head_of(source, body):
    """The name of the function whose body is the block at `body`, -1 when it is none."""
    i = body - 1
    while i > 0 and source.at(i) not in {")", "}", ";", "{"}:
        i -= 1
    while source.at(i) in {")", "}"}:
        name = source.partner.get(i, 0) - 1
        if source.at(name - 1) not in {",", ":"}:  # what a constructor sets first stands before it
            return name if source.token(name).kind == "name" and source.at(name) not in NO_CALLS else -1
        i = name - 2
    return -1


def words_before(source, name):
    """What stands before the name of a function, without the class it belongs to."""
    i = name - (source.at(name - 1) == "~")
    while source.at(i - 1) == "::":
        i -= 2
    words = []
    while source.at(i - 1) not in {";", "{", "}", ""}:
        i -= 1
        words.append(source.at(i))
    return set(words)


def return_early(source):
    for i in range(len(source.tokens)):
        name = head_of(source, i) if source.is_block(i) and source.block_of(i) == -1 else -1
        if name == -1 or source.at(i + 1) == "}":
            continue
        words = words_before(source, name)
        gives_nothing = "void" in words or not words - NO_RESULT
        end = source.tokens[i].end
        yield i, end, end, " return;" if gives_nothing else " return {};"


KINDS = {
    "delete a statement": delete_statement,
    "negate a condition": negate_condition,
    "swap an operator": swap_operator,
    "change a constant": change_constant,
    "drop an argument": drop_argument,
    "return nothing": return_nothing,
    "return early": return_early,
}

#include "workbench/network/Script.hpp"

#include <algorithm>

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"

namespace workbench {

namespace {

using std::string;
using std::string_view;

constexpr string_view FirstBanner = "# TelmScript Preliminiary Experimental ";
constexpr string_view SecondBanner = "# VERBOSE";
constexpr string_view Announcement = "# Expecting Implicitly created object: ";
constexpr string_view Procedural = "# Expecting procedurally object:  ";
constexpr string_view NoteBegin = "# Note: ";
constexpr string_view NoteEnd = " is not saved.";
constexpr string_view AttributePrefix = "qTelm::Net::";

string_view withoutBlanksBehind(string_view text) {
    std::size_t const last = text.find_last_not_of(" \t");
    return text.substr(0, last == string_view::npos ? 0 : last + 1);
}

/// Editors take blanks at the end of a line away: both forms are meant.
bool isFixed(string_view text, string_view fixed) {
    return withoutBlanksBehind(text) == withoutBlanksBehind(fixed);
}

/// Names hold no blanks and none of the signs that divide a line.
bool isName(string_view text) {
    return !text.empty() && text.find_first_of(" \t\"'=<>(){}[]#.,;") == string_view::npos;
}

/// Names of parameters and inputs may hold blanks and points within.
bool isParameterName(string_view text) {
    return !text.empty() && text.front() != ' ' && text.back() != ' ' && text.front() != '.' &&
           text.back() != '.' && text.find_first_of("\t\"=<>(){}#") == string_view::npos;
}

/// A catalogue key: names joined by slashes, perhaps a single one.
bool isKey(string_view text) {
    return isName(text) && text.front() != '/' && text.back() != '/';
}

/// The parts in front of and behind the first `divider`.
struct Halves {
    string_view front;
    string_view back;
};

std::optional<Halves> halves(string_view text, string_view divider) {
    std::size_t const at = text.find(divider);
    if (at == string_view::npos)
        return std::nullopt;
    return Halves{text.substr(0, at), text.substr(at + divider.size())};
}

UnreadableLine unreadable(string reason) {
    return UnreadableLine{std::move(reason)};
}

/// `CameraControl Camera`
std::optional<Halves> keyAndName(string_view text) {
    auto const parts = halves(text, " ");
    return parts && isKey(parts->front) && isName(parts->back) ? parts : std::nullopt;
}

Meaning commentMeaning(string_view text) {
    if (isFixed(text, FirstBanner) || isFixed(text, SecondBanner))
        return BannerLine{};
    if (isFixed(text, Announcement))
        return AnnouncementLine{};
    if (text.starts_with(Procedural)) {
        string_view const name = text.substr(Procedural.size());
        if (!isName(name))
            return unreadable("the expected object has no proper name");
        return ExpectedLine{"", string(name)};
    }
    if (text.starts_with(NoteBegin) && text.ends_with(NoteEnd) &&
        text.size() > NoteBegin.size() + NoteEnd.size()) {
        text.remove_prefix(NoteBegin.size());
        text.remove_suffix(NoteEnd.size());
        if (auto const path = valuePathOf(text); path && path->context.empty())
            return NoteLine{path->object, path->name};
    }
    return CommentLine{};
}

Meaning connectionMeaning(string_view consumer, string_view provider) {
    auto const input = halves(consumer, ".");
    if (!input || !isName(input->front) || !isParameterName(input->back))
        return unreadable("in front of '=>' an object and its input must stand, as OBJECT.INPUT");
    auto const output = halves(provider, ".");
    string_view const object = output ? output->front : provider;
    if (!isName(object) || (output && !isParameterName(output->back)))
        return unreadable("behind '=>' an object must stand, as OBJECT or OBJECT.PARAMETER");
    return ConnectionLine{string(input->front), string(input->back), string(object),
                          string(output ? output->back : "")};
}

/// `Camera.zoom.double(max)` and `140`
Meaning propertyMeaning(string_view target, string_view value) {
    std::size_t const open = target.find('(');
    if (open == string_view::npos)
        return unreadable("the value must stand in double quotes, as OBJECT.NAME=\"VALUE\"");
    string_view const path = target.substr(0, open);
    string_view const name = target.substr(open + 1, target.size() - open - 2);
    std::size_t const first = path.find('.');
    std::size_t const last = path.rfind('.');
    if (!target.ends_with(')') || !isName(name) || last == string_view::npos || last == first ||
        !isName(path.substr(0, first)) || !isName(path.substr(last + 1)) ||
        !isParameterName(path.substr(first + 1, last - first - 1)))
        return unreadable("a property must stand as OBJECT.PARAMETER.TYPE(NAME)=VALUE");
    if (value.empty() || value.find_first_of(" \t\"") != string_view::npos)
        return unreadable("the value of a property must stand bare behind the equals sign");
    return PropertyLine{string(path.substr(0, first)),
                        string(path.substr(first + 1, last - first - 1)),
                        string(path.substr(last + 1)), string(name), string(value)};
}

Meaning parameterMeaning(string_view path, string_view quotedValue) {
    auto const where = valuePathOf(path);
    if (!where)
        return unreadable(
            "in front of the equals sign a parameter must stand, as OBJECT.NAME or "
            "OBJECT.NAME{CONTEXT}");
    if (quotedValue.size() < 2 || quotedValue.back() != '"')
        return unreadable("the value has no double quote at its end; is the line cut off?");
    string const value(quotedValue.substr(1, quotedValue.size() - 2));
    if (isAttribute(where->name) && where->context.empty())
        return AttributeLine{where->object, where->name, value};
    return ParameterLine{where->object, where->name, where->context, value};
}

Meaning objectMeaning(string_view text) {
    if (text.starts_with("<>"))
        return isName(text.substr(2)) ? Meaning(DeletionLine{string(text.substr(2))})
                                      : unreadable("behind '<>' the name of an object must stand");
    if (text.ends_with("()") && isName(text.substr(0, text.size() - 2)))
        return SetupLine{string(text.substr(0, text.size() - 2))};
    if (auto const parts = keyAndName(text))
        return CreationLine{string(parts->front), string(parts->back)};
    return unreadable("the line has none of the forms of a script; is it cut off?");
}

bool hasControlCharacter(string_view text) {
    return std::ranges::any_of(text, [](char each) {
        auto const code = static_cast<unsigned char>(each);
        return (code < 32 && each != '\t') || code == 127;
    });
}

/// The line behind an announcement.
Meaning expectedMeaning(string_view text) {
    if (text.starts_with("# "))
        if (auto const parts = keyAndName(text.substr(2)))
            return ExpectedLine{string(parts->front), string(parts->back)};
    return unreadable("here '# KEY NAME' of the object announced by the line before must stand");
}

Line takeLine(string_view& rest, std::size_t number) {
    std::size_t const feed = rest.find('\n');
    string_view text = rest.substr(0, feed);
    string_view end = feed == string_view::npos ? "" : "\n";
    rest.remove_prefix(feed == string_view::npos ? rest.size() : feed + 1);
    if (!end.empty() && text.ends_with('\r')) {
        text.remove_suffix(1);
        end = "\r\n";
    }
    return Line{number, string(text), string(end), BlankLine{}};
}

/// Throws if the text is no script at all.
void checkScript(string_view text) {
    if (text.empty())
        throw WorkError("is empty; a saved network begins with '" + string(FirstBanner) + "'");
    if (std::size_t const zero = text.find('\0'); zero != string_view::npos)
        throw WorkError("is no text: byte " + std::to_string(zero + 1) + " is zero");
    if (text.starts_with("\xef\xbb\xbf"))
        throw WorkError(
            "begins with a byte order mark, which is no part of a saved network; save it as UTF-8 "
            "without one");
    string_view const first = text.substr(0, text.find_first_of("\r\n"));
    if (!isFixed(first, FirstBanner))
        throw WorkError("is no saved network: its first line is " + inQuotes(first) + ", not '" +
                        string(FirstBanner) + "'");
}

}  // namespace

bool isAttribute(string_view name) {
    return name.starts_with(AttributePrefix);
}

std::optional<ValuePath> valuePathOf(string_view text) {
    auto const parts = halves(text, ".");
    if (!parts || !isName(parts->front))
        return std::nullopt;
    string_view name = parts->back;
    string_view context;
    if (auto const braces = halves(name, "{")) {
        name = braces->front;
        context = braces->back;
        if (!context.ends_with('}') || !isName(context.substr(0, context.size() - 1)))
            return std::nullopt;
        context.remove_suffix(1);
    }
    if (!isParameterName(name))
        return std::nullopt;
    return ValuePath{string(parts->front), string(name), string(context)};
}

Meaning meaningOf(string_view text) {
    if (text.size() > Script::MaxLineLength)
        return unreadable("the line has " + std::to_string(text.size()) + " bytes; more than " +
                          std::to_string(Script::MaxLineLength) + " are not read");
    if (hasControlCharacter(text))
        return unreadable("the line holds a control character; is the file a text?");
    if (withoutBlanksBehind(text).empty())
        return BlankLine{};
    if (text.starts_with('#'))
        return commentMeaning(text);
    std::size_t const equals = text.find('=');
    if (equals == string_view::npos)
        return objectMeaning(text);
    string_view const path = text.substr(0, equals);
    string_view const value = text.substr(equals + 1);
    if (value.starts_with('>'))
        return connectionMeaning(path, value.substr(1));
    return value.starts_with('"') ? parameterMeaning(path, value) : propertyMeaning(path, value);
}

Script Script::read(string_view text) {
    checkScript(text);
    Script script;
    bool announced = false;
    while (!text.empty()) {
        Line line = takeLine(text, script.lines.size() + 1);
        line.meaning = meaningOf(line.text);
        if (announced && !std::holds_alternative<UnreadableLine>(line.meaning))
            line.meaning = expectedMeaning(line.text);
        announced = std::holds_alternative<AnnouncementLine>(line.meaning);
        script.endsOpen = line.end.empty();
        script.lines.push_back(std::move(line));
    }
    if (announced)
        script.lines.back().meaning = unreadable("the object that it announces is missing");
    return script;
}

string Script::write() const {
    string text;
    for (Line const& line : lines)
        text += line.text + line.end;
    return text;
}

namespace {

/// The text of each form.
struct TextOf {
    using Text = std::optional<string>;

    Text operator()(BlankLine const&) const { return std::nullopt; }
    Text operator()(CommentLine const&) const { return std::nullopt; }
    Text operator()(BannerLine const&) const { return std::nullopt; }
    Text operator()(UnreadableLine const&) const { return std::nullopt; }
    Text operator()(AnnouncementLine const&) const { return string(Announcement); }
    Text operator()(ExpectedLine const& line) const {
        return line.key.empty() ? string(Procedural) + line.object
                                : "# " + line.key + " " + line.object;
    }
    Text operator()(DeletionLine const& line) const { return "<>" + line.object; }
    Text operator()(CreationLine const& line) const { return line.key + " " + line.object; }
    Text operator()(ParameterLine const& line) const {
        string const context = line.context.empty() ? "" : "{" + line.context + "}";
        return line.object + "." + line.name + context + "=\"" + line.value + "\"";
    }
    Text operator()(PropertyLine const& line) const {
        return line.object + "." + line.parameter + "." + line.type + "(" + line.name +
               ")=" + line.value;
    }
    Text operator()(NoteLine const& line) const {
        return string(NoteBegin) + line.object + "." + line.parameter + string(NoteEnd);
    }
    Text operator()(AttributeLine const& line) const {
        return line.object + "." + line.name + "=\"" + line.value + "\"";
    }
    Text operator()(ConnectionLine const& line) const {
        string const parameter = line.parameter.empty() ? "" : "." + line.parameter;
        return line.object + "." + line.input + "=>" + line.provider + parameter;
    }
    Text operator()(SetupLine const& line) const { return line.object + "()"; }
};

}  // namespace

std::optional<string> textOf(Meaning const& meaning) {
    return std::visit(TextOf{}, meaning);
}

bool begins(Meaning const& meaning, string const& object) {
    return objectOf(meaning) == object && (std::holds_alternative<CreationLine>(meaning) ||
                                           std::holds_alternative<ExpectedLine>(meaning));
}

string objectOf(Meaning const& meaning) {
    return std::visit(
        [](auto const& line) -> string {
            if constexpr (requires { line.object; })
                return line.object;
            else
                return {};
        },
        meaning);
}

}  // namespace workbench

/// Saved networks as text.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace workbench {

/// Nothing but blanks.
struct BlankLine {
    bool operator==(BlankLine const&) const = default;
};
/// A comment that is no other form.
struct CommentLine {
    bool operator==(CommentLine const&) const = default;
};
/// `# TelmScript Preliminiary Experimental ` and `# VERBOSE`.
struct BannerLine {
    bool operator==(BannerLine const&) const = default;
};
/// `# Expecting Implicitly created object: `: the next line names the object.
struct AnnouncementLine {
    bool operator==(AnnouncementLine const&) const = default;
};
/// `# CameraControl Camera` behind an announcement, or, with an empty key,
/// `# Expecting procedurally object:  CameraLens`.
struct ExpectedLine {
    std::string key;
    std::string object;
    bool operator==(ExpectedLine const&) const = default;
};
/// `<>theBundle`
struct DeletionLine {
    std::string object;
    bool operator==(DeletionLine const&) const = default;
};
/// `Create/GlobalTime GlobalTime`
struct CreationLine {
    std::string key;
    std::string object;
    bool operator==(CreationLine const&) const = default;
};
/// `Camera.zoom="45"`, and with a context `Camera.zoom{Viewer1}="45"`.
struct ParameterLine {
    std::string object;
    std::string name;
    std::string context;  ///< empty for the parameter's own value
    std::string value;
    bool operator==(ParameterLine const&) const = default;
};
/// `Camera.zoom.double(max)=140`
struct PropertyLine {
    std::string object;
    std::string parameter;
    std::string type;
    std::string name;
    std::string value;
    bool operator==(PropertyLine const&) const = default;
};
/// `# Note: Camera.status is not saved.`
struct NoteLine {
    std::string object;
    std::string parameter;
    bool operator==(NoteLine const&) const = default;
};
/// `Camera.qTelm::Net::x="0"`; the name includes `qTelm::Net::`.
struct AttributeLine {
    std::string object;
    std::string name;
    std::string value;
    bool operator==(AttributeLine const&) const = default;
};
/// `Camera.time=>GlobalTime.value`; the parameter may be missing.
struct ConnectionLine {
    std::string object;
    std::string input;  ///< may hold points: `FieldSlice.renderable`
    std::string provider;
    std::string parameter;
    bool operator==(ConnectionLine const&) const = default;
};
/// `Camera()`
struct SetupLine {
    std::string object;
    bool operator==(SetupLine const&) const = default;
};
/// None of the forms.
struct UnreadableLine {
    std::string reason;
    bool operator==(UnreadableLine const&) const = default;
};

using Meaning = std::variant<BlankLine, CommentLine, BannerLine, AnnouncementLine, ExpectedLine,
                             DeletionLine, CreationLine, ParameterLine, PropertyLine, NoteLine,
                             AttributeLine, ConnectionLine, SetupLine, UnreadableLine>;

/// One line of a script.
struct Line {
    std::size_t number;  ///< in the file, from 1; 0 for a line added later
    std::string text;    ///< as it stands, without its end
    std::string end;     ///< "\n", "\r\n", or nothing
    Meaning meaning;

    bool operator==(Line const&) const = default;
};

/// The place of a value: `Camera.zoom`, `Camera.zoom{Viewer1}`.
struct ValuePath {
    std::string object;
    std::string name;
    std::string context;
};

/// A script, line by line.
///
/// Reading never fails as a whole but for what is no script at all; a line of
/// no known form stands as `UnreadableLine`. Every line keeps its text, so that
/// writing gives the same bytes back. Threads: a value, [any].
class Script {
public:
    /// A line of more bytes than this is none that is read.
    static constexpr std::size_t MaxLineLength = 65536;

    /// Reads a text. Throws `WorkError` for what is no script: an empty text,
    /// one with zero bytes, one that does not begin with the banner.
    static Script read(std::string_view text);

    /// The script as text.
    std::string write() const;

    std::vector<Line> lines;
    /// The last line has no end: the text may be cut off.
    bool endsOpen = false;
};

/// What a line means by itself, without the lines around it. An announcement
/// makes the line behind it an expected object, which `Script::read` knows.
Meaning meaningOf(std::string_view text);

/// The text of a line of that meaning; nothing for those whose text is free:
/// blanks, comments, banners and what is unreadable.
std::optional<std::string> textOf(Meaning const& meaning);

/// The object that a line is about, the consuming one for a connection; empty
/// if it is about none.
std::string objectOf(Meaning const& meaning);

/// Whether a line makes or expects the object.
bool begins(Meaning const& meaning, std::string const& object);

/// Reads `Camera.zoom{Viewer1}`; nothing if it has not that form.
std::optional<ValuePath> valuePathOf(std::string_view text);

/// Whether a parameter name is that of an attribute of the network editor.
bool isAttribute(std::string_view name);

}  // namespace workbench

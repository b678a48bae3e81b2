#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "model/menu_project.h"

namespace qor::project_layout {

// How a value line is written and read. The same encodings serve every
// positional file of the editor, so a second format walks these tables too.
enum class Encoding : std::uint8_t {
    Text,         // the value as it is, on one line
    MultiLine,    // every line break written as "¤", read back as CR LF
    Number,       // " 9600 ", read leniently, single precision
    Colour,       // a 32-bit number: " 16777215 "
    Flag,         // " 1 " or " 0 ", read as a number and the row's flag rule
    Path,         // a file path, written by the relative path rule
    Icon,         // the default icon marker as it is, any other value as a Path
    DecimalText,  // text written as it is, read as a number written back in decimals
    Reserved,     // a line that holds no value: `text` is written, the line read and ignored
};

// When a flag line reads true: the rule differs from line to line.
enum class FlagRule : std::uint8_t {
    Positive,  // > 0
    NotZero,   // != 0
    One,       // = 1
};

// What a reader does with a row besides storing it.
enum class ReadHook : std::uint8_t {
    None,
    BackgroundImage,  // the picture is loaded from the stored path
    StartupAction,    // the startup choice follows the line, under the loading flag
};

template <class Record>
using Member = std::variant<std::monostate, std::string Record::*, float Record::*, bool Record::*,
                            std::int32_t Record::*>;

// One line of a block.
template <class Record>
struct Field {
    std::string_view name;            // the model's field, or the reserved line's text
    Encoding encoding = Encoding::Text;
    Member<Record> member{};
    FlagRule flag = FlagRule::NotZero;
    bool placeholderAware = false;    // a placeholder line leaves the field as it was
    bool strictNumber = false;        // a line that is not numeric is a type mismatch
    bool extra = false;               // read only from file version 1.1 on
    bool leftToMainLoop = false;      // written, but the block's reader leaves it to the main loop
    bool Record::* wordWhen = nullptr;  // Number: while this is set, `text` stands for the number
    std::string_view text = {};       // Reserved: the line; Number: the word written instead
    ReadHook hook = ReadHook::None;
};

// A section: its header line and its lines, in file order.
template <class Record>
struct Block {
    std::string_view header;
    std::span<const Field<Record>> fields;
};

// The number of lines a block's reader takes after the header.
template <class Record>
constexpr int linesRead(const Block<Record>& block, bool extras)
{
    int n = 0;
    for (const auto& f : block.fields)
        n += !f.leftToMainLoop && (extras || !f.extra);
    return n;
}

// Each row's member has the type its encoding reads and writes, and a
// reserved line has none: checked below for every table, at compile time.
template <class Record>
constexpr bool rowsMatchTheirMembers(std::span<const Field<Record>> fields)
{
    for (const auto& f : fields) {
        std::size_t want = 1;   // std::string
        switch (f.encoding) {
        case Encoding::Number: want = 2; break;
        case Encoding::Flag: want = 3; break;
        case Encoding::Colour: want = 4; break;
        case Encoding::Reserved: want = 0; break;
        default: break;
        }
        if (f.member.index() != want || (f.wordWhen && f.encoding != Encoding::Number))
            return false;
    }
    return true;
}

// "[Format]" carries no model field: which editor wrote the file, and the file version.
struct FormatLines {
    std::string editor;
    std::string version;
    std::string fileVersion;
};

template <class Record>
constexpr Field<Record> reserved(std::string_view text, bool leftToMainLoop = false, bool extra = false)
{
    return {.name = text, .encoding = Encoding::Reserved, .extra = extra, .leftToMainLoop = leftToMainLoop,
            .text = text};
}

using E = Encoding;
using F = FlagRule;
using P = MenuProject;

inline constexpr Field<FormatLines> kFormatFields[] = {
    {.name = "editor", .member = &FormatLines::editor},
    {.name = "version", .member = &FormatLines::version},
    {.name = "fileVersion", .member = &FormatLines::fileVersion},
};

inline constexpr Field<P> kAuthorFields[] = {
    {.name = "authorName", .member = &P::authorName},
    {.name = "authorEmail", .member = &P::authorEmail},
    {.name = "authorWebSite", .member = &P::authorWebSite},
    {.name = "notes", .encoding = E::MultiLine, .member = &P::notes},
};

inline constexpr Field<P> kGeneralFields[] = {
    {.name = "backgroundImage", .encoding = E::Path, .member = &P::backgroundImage, .hook = ReadHook::BackgroundImage},
    {.name = "width", .encoding = E::Number, .member = &P::width, .wordWhen = &P::fullScreen, .text = "plein"},
    {.name = "height", .encoding = E::Number, .member = &P::height, .wordWhen = &P::fullScreen, .text = "ecran"},
    {.name = "border", .encoding = E::Flag, .member = &P::border, .flag = F::Positive},
    {.name = "icon", .encoding = E::Icon, .member = &P::icon, .placeholderAware = true},
    reserved<P>("'para3"),
    {.name = "backgroundMusic", .encoding = E::Path, .member = &P::backgroundMusic, .placeholderAware = true},
};

inline constexpr Field<P> kParamsPlusFields[] = {
    {.name = "startupAction", .encoding = E::MultiLine, .member = &P::startupAction, .hook = ReadHook::StartupAction},
    {.name = "backgroundColor", .encoding = E::Colour, .member = &P::backgroundColor},
    {.name = "contextMenu", .encoding = E::Flag, .member = &P::contextMenu},
    {.name = "timerEnabled", .encoding = E::Flag, .member = &P::timerEnabled},
    {.name = "timerInterval", .encoding = E::DecimalText, .member = &P::timerInterval},
    {.name = "timerScript", .encoding = E::MultiLine, .member = &P::timerScript, .placeholderAware = true},
    {.name = "globalScript", .encoding = E::MultiLine, .member = &P::globalScript, .placeholderAware = true},
    {.name = "handCursor", .encoding = E::Flag, .member = &P::handCursor},
    {.name = "clickSound", .encoding = E::Path, .member = &P::clickSound, .placeholderAware = true},
    {.name = "hoverSound", .encoding = E::Path, .member = &P::hoverSound, .placeholderAware = true},
};

// Its thirteen reserved lines are passed over by the main loop, not read.
inline constexpr Field<P> kOtherFields[] = {
    {.name = "transparencyImage", .encoding = E::Path, .member = &P::transparencyImage},
    {.name = "windowHoverScript", .encoding = E::MultiLine, .member = &P::windowHoverScript, .placeholderAware = true},
    reserved<P>("'para3", true),  reserved<P>("'para4", true),  reserved<P>("'para5", true),
    reserved<P>("'para6", true),  reserved<P>("'para7", true),  reserved<P>("'para8", true),
    reserved<P>("'para9", true),  reserved<P>("'para10", true), reserved<P>("'para11", true),
    reserved<P>("'para12", true), reserved<P>("'para13", true), reserved<P>("'para14", true),
    reserved<P>("'para15", true),
};

using B = MenuButton;

// The normal image is loaded after the action line, before the extra lines
// that files from version 1.1 on carry.
inline constexpr Field<B> kButtonFields[] = {
    {.name = "left", .encoding = E::Number, .member = &B::left},
    {.name = "top", .encoding = E::Number, .member = &B::top},
    {.name = "normalImage", .encoding = E::Path, .member = &B::normalImage},
    {.name = "hoverImage", .encoding = E::Path, .member = &B::hoverImage},
    {.name = "pressedImage", .encoding = E::Path, .member = &B::pressedImage},
    {.name = "kind", .member = &B::kind},
    {.name = "action", .encoding = E::MultiLine, .member = &B::action},
    {.name = "hoverScript", .encoding = E::MultiLine, .member = &B::hoverScript, .extra = true},
    {.name = "transparent", .encoding = E::Flag, .member = &B::transparent, .flag = F::One,
     .placeholderAware = true, .extra = true},
    {.name = "transparentColor", .encoding = E::Colour, .member = &B::transparentColor, .extra = true},
    reserved<B>("'para4", false, true),
};

using T = MenuText;

// Top before left here, unlike the button block. The colours must be
// numbers; the four reserved lines have no apostrophe.
inline constexpr Field<T> kTextFields[] = {
    {.name = "content", .encoding = E::MultiLine, .member = &T::content},
    {.name = "backColor", .encoding = E::Colour, .member = &T::backColor, .strictNumber = true},
    {.name = "foreColor", .encoding = E::Colour, .member = &T::foreColor, .strictNumber = true},
    {.name = "fontBold", .encoding = E::Flag, .member = &T::fontBold, .flag = F::One},
    {.name = "fontItalic", .encoding = E::Flag, .member = &T::fontItalic, .flag = F::One},
    // Any font name is kept: the screen substitutes a face it has.
    {.name = "fontName", .member = &T::fontName},
    {.name = "fontSize", .encoding = E::Number, .member = &T::fontSize},
    {.name = "fontStrikethru", .encoding = E::Flag, .member = &T::fontStrikethru, .flag = F::One},
    {.name = "fontUnderline", .encoding = E::Flag, .member = &T::fontUnderline, .flag = F::One},
    {.name = "top", .encoding = E::Number, .member = &T::top},
    {.name = "left", .encoding = E::Number, .member = &T::left},
    {.name = "width", .encoding = E::Number, .member = &T::width},
    {.name = "height", .encoding = E::Number, .member = &T::height},
    {.name = "settings", .member = &T::settings},
    reserved<T>("para1"), reserved<T>("para2"), reserved<T>("para3"), reserved<T>("para4"),
};

inline constexpr Block<FormatLines> kFormat{"[Format]", kFormatFields};
inline constexpr Block<P> kAuthor{"[Auteur]", kAuthorFields};
inline constexpr Block<P> kGeneral{"[Général]", kGeneralFields};
inline constexpr Block<P> kParamsPlus{"[ParamsPlus]", kParamsPlusFields};
inline constexpr Block<P> kOther{"[Autre]", kOtherFields};
inline constexpr Block<B> kButton{"[Bouton]", kButtonFields};
inline constexpr Block<T> kText{"[Texte]", kTextFields};

static_assert(rowsMatchTheirMembers(kFormat.fields) && rowsMatchTheirMembers(kAuthor.fields) &&
              rowsMatchTheirMembers(kGeneral.fields) && rowsMatchTheirMembers(kParamsPlus.fields) &&
              rowsMatchTheirMembers(kOther.fields) && rowsMatchTheirMembers(kButton.fields) &&
              rowsMatchTheirMembers(kText.fields));

}  // namespace qor::project_layout

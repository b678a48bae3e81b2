#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/menu_data_layout.h"
#include "model/menu_project.h"

namespace qor {

// How a value stands in the compiled menu data.
enum class DataValueKind {
    OneLine,     // a text on one logical line
    MultiLine,   // a script or text box: its line breaks become "¤"
    FileName,    // the bare name of a file copied into qor/
};

// Why a value cannot be carried as it stands.
enum class DataValueProblem {
    Separator,      // "¬": the data's line separator
    LineBreakMark,  // "¤": read back as a line break
    LineBreak,      // CR or LF in a one-line value
    NulByte,        // the players read their data as C strings
    NotWestern,     // a file name Windows-1252 cannot spell
    NameTooLong,    // a file name no file system takes
    NoFileName,     // a path ending in a folder, ".", or ".."
};

// The longest file name (in characters) a file copied into qor/ may have.
inline constexpr std::size_t kLongestFileName = 255;

// The first problem of one value, or nothing when the data can carry it.
std::optional<DataValueProblem> dataValueProblem(std::string_view value, DataValueKind kind);

// Where a refused value comes from.
struct DataValueFault {
    enum class Record { Project, Info, Button, Text };
    Record record = Record::Project;
    int number = 0;                 // Button, Text: the element's number
    std::string_view field;         // the row's name: "backgroundImage", "action", "projectName" ...
    std::string value;              // as the data would carry it (a file's bare name)
    DataValueProblem problem = DataValueProblem::Separator;
    DataValueKind kind = DataValueKind::OneLine;
};

// The first value of the compiled data, in data order, that it cannot
// carry: walks the same tables as the writer, so a new row is checked too.
std::optional<DataValueFault> findDataValueFault(const MenuProject& project, const MenuDataInfo& info);

}  // namespace qor

#include "core/scripting/new_procedure.h"

#include "text/line_file.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor {

std::optional<NewProcedure> appendProcedure(std::string_view text, std::string_view name, ProcedureKind kind,
                                            ProcedureScope scope)
{
    if (name.empty())
        return std::nullopt;
    const std::string kindWord = kind == ProcedureKind::Function ? "Function" : "Sub";
    const std::string scopeWord = scope == ProcedureScope::Private ? "Private" : "Public";
    const std::string crLf(kCrLf);
    NewProcedure p{replaceAll(name, " ", "_"), std::string(text)};
    p.text += crLf + scopeWord + " " + kindWord + " " + p.name + "()" + crLf;
    p.caret = utf8Length(p.text);
    p.text += crLf + "End " + kindWord;
    return p;
}

}  // namespace qor

#include "core/wizard/wizard_scripts.h"

#include "model/menu_button.h"
#include "model/project_format.h"
#include "text/numbers.h"
#include "text/text_helpers.h"

namespace qor {

std::string openScript(const OpenTarget& open)
{
    const std::string mark(kLineBreakMark);
    return "'" + open.kind + mark + "Set exe_f = CreateObject(\"WScript.Shell\")" + mark + "exe_f.Run(\"" +
           replaceAll(open.target, "\"", "'") + "\")";
}

std::string messageScript(const MenuMessage& message)
{
    return "MsgBox \"" + replaceAll(message.text, "\r\n", "\"+chr(10)+chr(13)+\"") + "\", vbInformation, \"" +
           message.title + "\"";
}

std::string startupActionText(const StartupSettings& startup)
{
    const std::string prefix(project_format::scriptPrefix);
    switch (startup.choice) {
    case WizardStartup::Nothing: return "";
    case WizardStartup::MediaFile: return startup.mediaFile;
    case WizardStartup::Open: return prefix + openScript(startup.open);
    case WizardStartup::Message: return prefix + messageScript(startup.message);
    }
    return "";
}

ButtonBehaviour buttonBehaviour(const WizardButton& entry)
{
    switch (int(readNumber(entry.function))) {
    case 1: return {std::string(button_kind::quit), ""};
    case 2: return {std::string(button_kind::code), messageScript({entry.param1, entry.param2})};
    case 3: return {std::string(button_kind::code), openScript({entry.param2, entry.param1})};
    default: return {std::string(button_kind::video), entry.param1};
    }
}

}  // namespace qor

#include "core/wizard/wizard_project_file.h"

#include "model/line_writer.h"
#include "model/project_format.h"
#include "model/project_layout.h"
#include "text/cp1252.h"

namespace qor {
namespace {

namespace layout = project_layout;

constexpr double kButtonGap = 150;

std::string asWritten(std::string_view name)
{
    return std::string(name);
}

void writeGeneral(LineWriter& w, const WizardProject& p)
{
    w.line(layout::kGeneral.header);
    w.oneLine(p.backgroundImage);
    if (p.imageSize) {
        w.number(float(p.imageSize->width));
        w.number(float(p.imageSize->height));
    } else {
        w.line("9600");
        w.line("7200");
    }
    w.flag(p.border);
    // The icon keeps its default, and the reserved line its place.
    w.line("'para2");
    w.line("'para3");
    w.oneLine(p.backgroundMusic);
}

void writeParamsPlus(LineWriter& w, const WizardProject& p)
{
    w.line(layout::kParamsPlus.header);
    w.multiLine(p.startupAction);
    w.integer(p.backgroundColor);
    w.line("1");      // context menu
    w.line("0");      // timer off ...
    w.line("1000");   // ... at its usual period
    w.line("");       // timer script
    w.line("");       // global script
    w.line("1");      // hand cursor
    w.line("'para9");    // click sound: left as it is
    w.line("'para10");   // hover sound: likewise
}

void writeButton(LineWriter& w, const WizardProjectButton& b, double top)
{
    w.line(layout::kButton.header);
    w.line("200");
    w.number(float(top));
    w.oneLine(b.normalImage);
    w.oneLine(b.hoverImage);
    w.oneLine(b.pressedImage);
    w.oneLine(b.behaviour.kind);
    w.multiLine(b.behaviour.action);
    w.line("");   // hover script
    w.flag(b.transparent);
    w.integer(b.transparentColor);
    w.line("'para4");
}

}  // namespace

std::vector<double> stackedTops(const std::vector<double>& heights)
{
    std::vector<double> tops;
    double top = kButtonGap;
    for (double h : heights) {
        tops.push_back(top);
        top += h + kButtonGap;
    }
    return tops;
}

std::string wizardProjectText(const WizardProject& p)
{
    std::string out;
    LineWriter w(out, asWritten);
    w.line("");
    w.line(layout::kFormat.header);
    w.line("Editeur=Assistant création QOR");
    w.line(project_format::versionLine());
    w.line(std::string(project_format::fileVersionKey) + std::string(project_format::fileVersion));
    writeGeneral(w, p);
    writeParamsPlus(w, p);
    std::vector<double> heights;
    for (const auto& b : p.buttons)
        heights.push_back(b.normalHeight);
    const std::vector<double> tops = stackedTops(heights);
    for (std::size_t i = 0; i < p.buttons.size(); ++i)
        writeButton(w, p.buttons[i], tops[i]);
    return out;
}

std::string wizardProjectBytes(const WizardProject& project)
{
    return encodeCp1252(wizardProjectText(project));
}

}  // namespace qor

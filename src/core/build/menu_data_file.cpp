#include "core/build/menu_data_file.h"

#include "model/menu_data_writer.h"
#include "text/cp1252.h"

namespace qor {
namespace {

Status appendThrough(FileSystem& files, const std::string& intermediate, const MenuProject& project,
                     const MenuDataInfo& info, const std::string& player)
{
    if (Status s = files.writeFile(intermediate, encodeCp1252(menuDataLines(project, info))); !s)
        return s;
    auto text = files.readFile(intermediate);
    if (!text)
        return text.error();
    return files.appendToFile(player, encodeCp1252(menuDataLine(decodeCp1252(*text))));
}

}  // namespace

Status writeMenuData(FileSystem& files, const MenuProject& project, const MenuDataInfo& info,
                     const std::string& player)
{
    auto intermediate = files.createTempFile();
    if (!intermediate)
        return intermediate.error();
    Status s = appendThrough(files, *intermediate, project, info, player);
    (void)files.removeFile(*intermediate);
    return s;
}

}  // namespace qor

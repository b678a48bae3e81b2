#pragma once

#include <string>
#include <vector>

#include "core/ports/file_system.h"
#include "core/ports/program_runner.h"

namespace qor {

// CD images are written by xorriso (Debian's ISO 9660 tool), with Joliet
// names for Windows and Rock Ridge names for the rest.
inline constexpr const char* kIsoProgram = "xorriso";

// The volume name of a project's CD: its name in capitals without accents,
// other characters as "_", at most 32; "QOR" when nothing is left.
std::string isoVolumeName(const std::string& projectName);

// The program's arguments: the compiled folder's content at the root of the
// image, each added folder under its own name beside it.
std::vector<std::string> isoArguments(const std::string& image, const std::string& volume,
                                      const std::string& compiledFolder, const std::vector<std::string>& addedFolders);

// The name an added folder takes on the CD (its last path part).
std::string addedFolderName(const std::string& folder);

// Writes the image; an error when the tool is missing or fails.
Status writeIsoImage(ProgramRunner& runner, const std::string& image, const std::string& volume,
                     const std::string& compiledFolder, const std::vector<std::string>& addedFolders);

// Removes what a compilation wrote into a scratch folder, then the folder.
void removeCompiledFolder(FileSystem& files, const std::string& folder);

}  // namespace qor

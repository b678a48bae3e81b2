#pragma once

#include <string>

#include "model/project_read_hooks.h"

namespace qor {

// Everything loading a project needs from the views: what the reader
// reports, and the views' part of a reset. The editor implements it over
// its windows; the model and the file format stay free of them.
class ProjectHooks : public ProjectReadHooks {
public:
    // The views' part of a reset: remove every element but the two
    // templates from the worksheet, drop its background picture, leave the
    // element selector with "Feuille de travail" selected, set the startup
    // choice to "Rien", make currentButton 0. The model is reset apart.
    virtual void resetViews() = 0;

    // Makes folder the process's current folder, so that bare file names of
    // the project resolve against it while it loads.
    virtual void setCurrentFolder(const std::string& folder) = 0;
};

}  // namespace qor

#include "core/app/application.h"

namespace qor {

Application::Application(Platform p)
    : settings_(state_, p.settings, p.dialogs),
      recentFiles_(settings_, p.shellView),
      scriptEditor_(project_, selection_, p.dialogs),
      designer_(project_, selection_,
                DesignerPorts{p.dialogs, p.screen, state_.phrases, p.projectViews, scriptEditor_,
                              state_.options.showHandles}),
      shape_(project_, ShapePorts{p.dialogs, p.screen, state_.phrases}),
      // The QMB import is built after the routes to it; nothing reaches it
      // before the application is complete.
      routes_(recentFiles_, qmb_),
      services_{p.dialogs, state_.phrases, designer_, routes_},
      lifecycle_(project_, services_, p.desktop, p.documentView),
      qmb_(p.qmbConverter, p.dialogs,
           [this](const std::string& path) { lifecycle_.openPath(path); }),
      shell_(state_, AppPorts{p.dialogs, p.settings, p.desktop, p.screen, p.fileTypes}, p.shellView, settings_,
             recentFiles_, lifecycle_),
      appearanceEditor_(state_, p.dialogs, shell_, shell_.options())
{
    // The script editor's F5 runs the same test as the main window's command.
    scriptEditor_.setTestRun([this] { shell_.run(CommandId::TestProject); });
    designer_.setShapeEditor(&shape_);
    if (p.buildView) {
        build_.emplace(project_,
                       BuildPorts{p.dialogs, p.files ? *p.files : localFiles_, p.baker ? *p.baker : noBaker_,
                                  *p.buildView},
                       BuildSettings{state_.programFolder, state_.phrases, state_.options.requireMediaFile,
                                     kApplicationTitle});
        shell_.setBuild(&*build_);
    }
}

}  // namespace qor

#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "core/wizard/creation_wizard.h"
#include "fake_desktop.h"
#include "fake_dialogs.h"
#include "temp_dir.h"
#include "wizard_fakes.h"

namespace qor::test {

inline const char* const kCaption = "Assistant création";

inline Message refusal(const std::string& text)
{
    return Message{text, kCaption, MessageIcon::Exclamation};
}

struct WizardFixture : ::testing::Test {
    TempDir dir;
    FakeDialogs dialogs;
    FakeDesktop desktop;
    FakeButtonPictures pictures;
    FakeDocument document;
    FakeWizardView view;
    bool wizardOpen = false;
    CreationWizard wizard{wizardOpen,
                          {dialogs, desktop, pictures, document},
                          view,
                          {dir.folder() + "Documents", dir.folder() + "programme/", ScreenMetrics{0, 0, 15, 12}}};

    void SetUp() override { wizard.open(); }
    const WizardForm& form() { return wizard.form(); }

    std::string picture(const std::string& name, int width, int height)
    {
        return dir.write(name, FakeButtonPictures::pictureBytes(width, height));
    }

    void goTo(int step)
    {
        while (form().step < step)
            wizard.next();
        while (form().step > step)
            wizard.previous();
    }

    void addText(const std::string& caption)
    {
        wizard.addButton();
        wizard.chooseButtonType(ButtonType::Text);
        wizard.setCaption(caption);
        wizard.validateTextButton();
    }

    void addGraphic(const std::string& normal, const std::string& hover, const std::string& pressed)
    {
        wizard.addButton();
        wizard.chooseButtonType(ButtonType::Graphic);
        dialogs.openAnswers = {normal, hover, pressed};
        wizard.pickGraphicImage(GraphicImage::Normal);
        wizard.pickGraphicImage(GraphicImage::Hover);
        wizard.pickGraphicImage(GraphicImage::Pressed);
        wizard.validateGraphicButton();
    }

    // Everything below the test's folder, as relative paths.
    std::set<std::string> filesOnDisk()
    {
        std::set<std::string> out;
        for (const auto& e : std::filesystem::recursive_directory_iterator(dir.path()))
            out.insert(std::filesystem::relative(e.path(), dir.path()).string());
        return out;
    }
};

}  // namespace qor::test

#pragma once

namespace qor {

// Renders the "_transp.bmp" images of every transparent button beside its
// source images, so that what is built ships up-to-date pictures.
class ButtonBaker {
public:
    virtual ~ButtonBaker() = default;
    virtual void bakeAllButtons() = 0;
};

// Until the worksheet can bake, baking leaves the images as they are.
class NoButtonBaker final : public ButtonBaker {
public:
    void bakeAllButtons() override {}
};

}  // namespace qor

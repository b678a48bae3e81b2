#pragma once

namespace qor {

// Renders the "_transp.bmp" images of transparent buttons beside their
// source images, so that what is built ships up-to-date pictures.
class ButtonBaker {
public:
    virtual ~ButtonBaker() = default;
    // Every button that bake all buttons renders.
    virtual void bakeAllButtons() = 0;
    // One button's three pictures ("Aperçu rapide").
    virtual void bakeButton(int number) = 0;
};

// Where nothing can draw (a build without the worksheet), baking leaves the
// images as they are.
class NoButtonBaker final : public ButtonBaker {
public:
    void bakeAllButtons() override {}
    void bakeButton(int) override {}
};

}  // namespace qor

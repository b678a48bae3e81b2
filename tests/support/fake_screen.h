#pragma once

#include "core/ports/screen.h"

namespace qor::test {

// A screen of the given size in pixels at 15 twips per pixel.
class FakeScreen : public Screen {
public:
    ScreenMetrics value;

    explicit FakeScreen(double widthPixels = 1024, double heightPixels = 768, double tpp = 15)
    {
        value = {widthPixels * tpp, heightPixels * tpp, tpp, tpp};
    }

    ScreenMetrics metrics() override { return value; }
};

}  // namespace qor::test

#pragma once

#include <string>
#include <vector>

#include "core/shape/shape_view.h"

namespace qor::test {

// Records what the shape editor's flows asked of its windows.
class FakeShapeView : public ShapeView {
public:
    // One word per call, in order: "show", "close", "refresh", "band", "cut", "drag".
    std::vector<std::string> calls;
    std::vector<std::vector<PixelPoint>> cuts;
    std::string caption = "Editeur";

    void showEditor() override { calls.push_back("show"); }
    void closeEditor() override { calls.push_back("close"); }
    void refresh() override { calls.push_back("refresh"); }
    void rubberBandMoved() override { calls.push_back("band"); }
    void cutSurface(const std::vector<PixelPoint>& outline) override
    {
        calls.push_back("cut");
        cuts.push_back(outline);
    }
    void dragSurface() override { calls.push_back("drag"); }
    std::string editorCaption() override { return caption; }

    int count(const std::string& call) const
    {
        int n = 0;
        for (const auto& c : calls)
            n += c == call;
        return n;
    }
};

}  // namespace qor::test

#include "fake_controls.h"

#include "text/text_helpers.h"

namespace qor::test {
namespace {

class FakeNode : public ControlNode {
public:
    FakeNode(std::shared_ptr<FakeControl> c, FakeWindow* window) : c_(std::move(c)), window_(window) {}

    std::string typeName() const override { return c_->type; }
    std::string name() const override { return c_->name; }
    int index() const override { return c_->index; }

    std::vector<std::unique_ptr<ControlNode>> controls(std::string_view name) override
    {
        std::vector<std::unique_ptr<ControlNode>> found;
        if (window_)
            for (auto& c : window_->controls)
                if (equalsNoCase(c->name, name))
                    found.push_back(std::make_unique<FakeNode>(c, nullptr));
        return found;
    }

    std::vector<std::unique_ptr<ControlNode>> allControls() override
    {
        std::vector<std::unique_ptr<ControlNode>> all;
        if (window_)
            for (auto& c : window_->controls)
                all.push_back(std::make_unique<FakeNode>(c, nullptr));
        return all;
    }

    std::optional<PropertyValue> read(ControlProperty p) const override
    {
        auto it = c_->properties.find(p);
        return it == c_->properties.end() ? std::nullopt : std::optional(it->second);
    }

    bool write(ControlProperty p, const PropertyValue& v) override
    {
        auto it = c_->properties.find(p);
        if (it == c_->properties.end())
            return false;
        it->second = v;
        return true;
    }

    bool addItem(const std::string& text) override
    {
        if (c_->isList)
            c_->items.push_back(text);
        return c_->isList;
    }

private:
    std::shared_ptr<FakeControl> c_;
    FakeWindow* window_;
};

}  // namespace

FakeControl& FakeWindow::add(std::string name, int index, std::map<ControlProperty, PropertyValue> properties)
{
    auto c = std::make_shared<FakeControl>();
    c->name = std::move(name);
    c->index = index;
    c->properties = std::move(properties);
    controls.push_back(c);
    return *c;
}

std::unique_ptr<ControlNode> FakeWindow::node()
{
    if (self->properties.empty()) {
        self->type = "Form";
        self->properties = {{ControlProperty::Caption, std::string()}, {ControlProperty::BackColor, std::int64_t(0)}};
    }
    return std::make_unique<FakeNode>(self, this);
}

}  // namespace qor::test

#include "player/core/runtime_objects.h"

#include <functional>
#include <span>
#include <type_traits>

#include "player/core/picture.h"
#include "script/operations.h"

namespace qor::player {
namespace {

using script::Args;
using script::HostResult;
using script::Value;

// One property of a run-time object: how it reads from its part of the
// scene and how it writes; a null function is a property that cannot be
// read or written that way.
template <class T>
struct Property {
    std::string_view name;
    Value (*get)(const T&);
    void (*set)(T&, const Value&);
};

Value text(const std::string& s) { return Value::string(s); }
Value number(double d) { return d == double(std::int32_t(d)) ? Value::longValue(std::int32_t(d)) : Value::dbl(d); }
Value flag(bool b) { return Value::boolean(b); }
Value colour(std::uint32_t c) { return Value::longValue(std::int32_t(c)); }
std::uint32_t toColour(const Value& v) { return std::uint32_t(script::toLong(v)); }

// A run-time object whose properties are rows of a table over one part of
// the scene; each write tells the front-end what changed.
template <class T>
class TableObject : public script::HostObject {
public:
    TableObject(std::string typeName, std::span<const Property<T>> table, std::function<T&()> part,
                std::function<void()> changed)
        : typeName_(std::move(typeName)), table_(table), part_(std::move(part)), changed_(std::move(changed))
    {
    }
    std::string typeName() const override { return typeName_; }

    HostResult getProperty(std::string_view name, Args args) override
    {
        const Property<T>* row = find(name);
        if (!row || !row->get || !args.empty())
            return noMember();
        return HostResult::ok(row->get(part_()));
    }

    HostResult setProperty(std::string_view name, Args args, const Value& value) override
    {
        const Property<T>* row = find(name);
        if (!row || !row->set || !args.empty())
            return noMember();
        try {
            row->set(part_(), value);
        } catch (script::ScriptError& e) {
            return HostResult{Value(), std::move(e)};
        }
        changed_();
        return HostResult::ok();
    }

private:
    const Property<T>* find(std::string_view name) const
    {
        for (const auto& row : table_)
            if (equalsNoCase(row.name, name))
                return &row;
        return nullptr;
    }

    std::string typeName_;
    std::span<const Property<T>> table_;
    std::function<T&()> part_;
    std::function<void()> changed_;
};

// The mouse pointer of any element, as two rows.
template <class T, CursorChoice T::*cursor>
constexpr Property<T> kPointer{"MousePointer", [](const T& t) { return Value::longValue((t.*cursor).pointer); },
                               [](T& t, const Value& v) { (t.*cursor).pointer = script::toLong(v); }};
template <class T, CursorChoice T::*cursor>
constexpr Property<T> kIcon{"MouseIcon", [](const T& t) { return pictureValue((t.*cursor).icon); },
                            [](T& t, const Value& v) { (t.*cursor).icon = picturePath(v); }};

using W = WindowScene;
const Property<W> kWindow[] = {
    {"Caption", [](const W& w) { return text(w.caption); }, [](W& w, const Value& v) { w.caption = script::toText(v); }},
    {"BackColor", [](const W& w) { return colour(w.backColor); }, [](W& w, const Value& v) { w.backColor = toColour(v); }},
    {"WindowState", [](const W& w) { return Value::integer(w.windowState); },
     [](W& w, const Value& v) { w.windowState = script::toLong(v); }},
    {"Left", [](const W& w) { return number(w.left); }, [](W& w, const Value& v) { w.left = script::toDouble(v); }},
    {"Top", [](const W& w) { return number(w.top); }, [](W& w, const Value& v) { w.top = script::toDouble(v); }},
    {"Width", [](const W& w) { return number(w.width); }, [](W& w, const Value& v) { w.width = script::toDouble(v); }},
    {"Height", [](const W& w) { return number(w.height); }, [](W& w, const Value& v) { w.height = script::toDouble(v); }},
    {"Visible", [](const W& w) { return flag(w.visible); }, [](W& w, const Value& v) { w.visible = script::toBoolean(v); }},
    kPointer<W, &W::cursor>,
    kIcon<W, &W::cursor>,
};

const Property<W> kScreen[] = {
    kPointer<W, &W::screenCursor>,
    kIcon<W, &W::screenCursor>,
};

const Property<W> kBorder[] = {
    {"BorderColor", [](const W& w) { return colour(w.borderColor); },
     [](W& w, const Value& v) { w.borderColor = toColour(v); }},
    {"BorderWidth", [](const W& w) { return Value::integer(w.borderWidth); },
     [](W& w, const Value& v) { w.borderWidth = std::clamp(int(script::toLong(v)), 0, 8192); }},
    {"Shape", [](const W& w) { return Value::integer(w.borderShape); },
     [](W& w, const Value& v) { w.borderShape = script::toLong(v); }},
    {"Visible", [](const W& w) { return flag(w.borderVisible); },
     [](W& w, const Value& v) { w.borderVisible = script::toBoolean(v); }},
};

const Property<W> kBackground[] = {
    {"Picture", [](const W& w) { return pictureValue(w.backgroundImage); },
     [](W& w, const Value& v) { w.backgroundImage = picturePath(v); }},
    {"Stretch", [](const W& w) { return flag(w.stretch); }, [](W& w, const Value& v) { w.stretch = script::toBoolean(v); }},
};

using Tm = TimerScene;
const Property<Tm> kTimer[] = {
    {"Interval", [](const Tm& t) { return Value::longValue(std::int32_t(t.interval)); },
     [](Tm& t, const Value& v) { t.interval = script::toLong(v); }},
    {"Enabled", [](const Tm& t) { return flag(t.enabled); }, [](Tm& t, const Value& v) { t.enabled = script::toBoolean(v); }},
};

using B = ButtonScene;
const Property<B> kButton[] = {
    {"Picture", [](const B& b) { return pictureValue(b.normalImage); },
     [](B& b, const Value& v) { b.normalImage = picturePath(v); }},
    {"Left", [](const B& b) { return number(b.left); }, [](B& b, const Value& v) { b.left = script::toDouble(v); }},
    {"Top", [](const B& b) { return number(b.top); }, [](B& b, const Value& v) { b.top = script::toDouble(v); }},
    {"Enabled", [](const B& b) { return flag(b.enabled); }, [](B& b, const Value& v) { b.enabled = script::toBoolean(v); }},
    {"Visible", [](const B& b) { return flag(b.visible); }, [](B& b, const Value& v) { b.visible = script::toBoolean(v); }},
    kPointer<B, &B::cursor>,
    kIcon<B, &B::cursor>,
};

using Tx = TextScene;
template <bool Tx::*field>
constexpr Property<Tx> kTextFlag(std::string_view name)
{
    return {name, [](const Tx& t) { return flag(t.*field); }, [](Tx& t, const Value& v) { t.*field = script::toBoolean(v); }};
}
template <double Tx::*field>
constexpr Property<Tx> kTextNumber(std::string_view name)
{
    return {name, [](const Tx& t) { return number(t.*field); }, [](Tx& t, const Value& v) { t.*field = script::toDouble(v); }};
}
template <std::uint32_t Tx::*field>
constexpr Property<Tx> kTextColour(std::string_view name)
{
    return {name, [](const Tx& t) { return colour(t.*field); }, [](Tx& t, const Value& v) { t.*field = toColour(v); }};
}

const Property<Tx> kText[] = {
    {"Text", [](const Tx& t) { return text(t.text); }, [](Tx& t, const Value& v) { t.text = script::toText(v); }},
    {"Alignment", [](const Tx& t) { return Value::integer(t.alignment); },
     [](Tx& t, const Value& v) { t.alignment = script::toLong(v); }},
    {"FontName", [](const Tx& t) { return text(t.fontName); }, [](Tx& t, const Value& v) { t.fontName = script::toText(v); }},
    kTextNumber<&Tx::fontSize>("FontSize"),
    kTextFlag<&Tx::fontBold>("FontBold"),
    kTextFlag<&Tx::fontItalic>("FontItalic"),
    kTextFlag<&Tx::fontStrikethru>("FontStrikethru"),
    kTextFlag<&Tx::fontUnderline>("FontUnderline"),
    kTextColour<&Tx::foreColor>("ForeColor"),
    kTextColour<&Tx::backColor>("BackColor"),
    kTextNumber<&Tx::width>("Width"),
    kTextNumber<&Tx::height>("Height"),
    kTextNumber<&Tx::left>("Left"),
    kTextNumber<&Tx::top>("Top"),
    kTextFlag<&Tx::locked>("Locked"),
    kTextFlag<&Tx::visible>("Visible"),
    kPointer<Tx, &Tx::cursor>,
    kIcon<Tx, &Tx::cursor>,
};

// Action: Tag holds the argument; setting Text asks for the verb.
class ActionObject : public script::HostObject {
public:
    explicit ActionObject(Stage& stage) : stage_(stage) {}
    std::string typeName() const override { return "TextBox"; }
    HostResult getProperty(std::string_view name, Args args) override
    {
        if (!args.empty())
            return noMember();
        if (equalsNoCase(name, "Tag"))
            return HostResult::ok(Value::string(tag_));
        if (equalsNoCase(name, "Text"))
            return HostResult::ok(Value::string(verb_));
        return noMember();
    }
    HostResult setProperty(std::string_view name, Args args, const Value& value) override
    {
        if (!args.empty())
            return noMember();
        std::string s;
        try {
            s = script::toText(value);
        } catch (script::ScriptError& e) {
            return HostResult{Value(), std::move(e)};
        }
        if (equalsNoCase(name, "Tag")) {
            tag_ = std::move(s);
            return HostResult::ok();
        }
        if (!equalsNoCase(name, "Text"))
            return noMember();
        verb_ = std::move(s);
        return stage_.request(verb_, tag_);
    }

private:
    Stage& stage_;
    std::string tag_;
    std::string verb_;
};

template <class T, std::size_t N>
void add(script::Module& module, const std::string& name, const Property<T> (&table)[N],
         std::type_identity_t<std::function<T&()>> part, std::function<void()> changed)
{
    module.addObject(name, script::makeRef<TableObject<T>>(name, std::span<const Property<T>>(table), std::move(part),
                                                           std::move(changed)));
}

template <class T, std::size_t N>
std::vector<std::string_view> names(const Property<T> (&table)[N])
{
    std::vector<std::string_view> out;
    for (const auto& row : table)
        out.push_back(row.name);
    return out;
}

}  // namespace

void addRuntimeObjects(script::Module& module, Stage& stage)
{
    auto window = [&stage]() -> WindowScene& { return stage.changeableScene().window; };
    auto windowChanged = [&stage] { stage.windowChanged(); };
    add(module, "Fenetre", kWindow, window, windowChanged);
    add(module, "Ecran", kScreen, window, windowChanged);
    add(module, "Bordure", kBorder, window, windowChanged);
    add(module, "ImageFond", kBackground, window, windowChanged);
    add(module, "Minuteur", kTimer, [&stage]() -> TimerScene& { return stage.changeableScene().timer; },
        [&stage] { stage.timerChanged(); });
    module.addObject("Action", script::makeRef<ActionObject>(stage));
    for (std::size_t i = 0; i < stage.changeableScene().buttons.size(); ++i)
        add(module, "Bouton" + std::to_string(stage.changeableScene().buttons[i].number), kButton,
            [&stage, i]() -> ButtonScene& { return stage.changeableScene().buttons[i]; },
            [&stage, i] { stage.buttonChanged(i); });
    for (std::size_t i = 0; i < stage.changeableScene().texts.size(); ++i)
        add(module, "Texte" + std::to_string(stage.changeableScene().texts[i].number), kText,
            [&stage, i]() -> TextScene& { return stage.changeableScene().texts[i]; },
            [&stage, i] { stage.textChanged(i); });
}

std::vector<RuntimeObjectInfo> runtimeObjectInfo()
{
    return {
        {"Fenetre", names(kWindow)},   {"Ecran", names(kScreen)},   {"Bordure", names(kBorder)},
        {"ImageFond", names(kBackground)}, {"Minuteur", names(kTimer)}, {"Action", {"Tag", "Text"}},
        {"Bouton", names(kButton)},    {"Texte", names(kText)},
    };
}

}  // namespace qor::player

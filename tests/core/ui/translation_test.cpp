#include <gtest/gtest.h>

#include <filesystem>

#include "core/ui/translation.h"
#include "fake_controls.h"
#include "temp_dir.h"

namespace qor {
namespace {

std::string text(const test::FakeControl& c, ControlProperty p = ControlProperty::Caption)
{
    auto it = c.properties.find(p);
    return it == c.properties.end() ? "<none>" : std::get<std::string>(it->second);
}

// A program folder with an English pack, and a run's language state.
struct LanguageRun {
    test::TempDir dir;
    std::string folder = dir.folder();
    std::string language = "English";
    Phrases phrases;
    Translator translator{language, phrases, folder};

    void pack(const std::string& file, const std::string& script)
    {
        std::filesystem::create_directories(dir.path() / "langues" / "English");
        dir.write("langues/English/" + file, script);
    }
};

TEST(Translation, AWindowsScriptReachesItsControlsByNameAndIndex)
{
    LanguageRun run;
    test::FakeWindow w;
    auto& open = w.add("Command1");
    auto& first = w.add("Option1", 0);
    auto& second = w.add("Option1", 1);
    auto& list = w.add("Combo1", -1, {{ControlProperty::Text, std::string()}});
    list.isList = true;
    run.pack("Form4.lge",
             "Command1.Caption = \"Open\"\r\n"
             "Form4.Caption = \"Settings\"\r\n"
             "Option1(1).Caption = \"Second\"\r\n"
             "Form4.Option1(0).Caption = \"First\" & Liste.ListCount\r\n"
             "Combo1.AddItem \"Worksheet\"\r\n"
             "command1.tooltiptext = \"x\"\r\n");
    auto message = run.translator.translate("Form4", w.node());
    // A control without a tooltip fails at the last line, after the others ran.
    ASSERT_TRUE(message);
    EXPECT_EQ(message->title, "Langue/Language 6");
    EXPECT_EQ(text(open), "Open");
    EXPECT_EQ(text(*w.self), "Settings");
    EXPECT_EQ(text(first), "First0");
    EXPECT_EQ(text(second), "Second");
    EXPECT_EQ(list.items, std::vector<std::string>{"Worksheet"});
}

TEST(Translation, TheMainWindowFillsThePhraseList)
{
    LanguageRun run;
    test::FakeWindow w;
    w.add("Command1");
    run.pack("Form2.lge", "Form2.Caption = \"QOR\"\r\n");
    run.pack("phrases.lge", "Liste.AddItem \"zero\"\r\nListe.AddItem \"two\"\r\nListe.AddItem \"one\", 1\r\n");
    EXPECT_FALSE(run.translator.translate("Form2", w.node()));
    EXPECT_TRUE(run.phrases.languageActive());
    EXPECT_EQ(run.phrases.text(1, "un"), "one");
    EXPECT_EQ(run.phrases.text(2, "deux"), "two");
    EXPECT_EQ(run.phrases.text(3, "trois"), "trois");  // beyond the list: the French text
    EXPECT_EQ(text(*w.self), "QOR");
}

TEST(Translation, FrenchAndTheUntranslatedWindowsRunNothing)
{
    LanguageRun run;
    test::FakeWindow w;
    run.pack("Form1.lge", "Form1.Caption = \"Objects\"\r\n");
    // Neither has a script, and neither may fail for it.
    for (const char* untranslated : {"Splash", "Form18"}) {
        EXPECT_FALSE(run.translator.translate(untranslated, w.node())) << untranslated;
        EXPECT_EQ(run.language, "English");
    }
    run.language.clear();
    EXPECT_FALSE(run.translator.translate("Form1", w.node()));
    EXPECT_EQ(text(*w.self), "");
}

TEST(Translation, AFailureIsShownAndTheRestOfTheRunIsFrench)
{
    struct Case {
        const char* what;
        std::optional<std::string> script;   // none: the file is missing
        std::string title;
        std::string description;             // a part of it
    };
    const std::string binary("\x7f" "ELF\x02\x01\x01\0\0\0\xff\xfe", 13);
    const Case cases[] = {
        {"syntax error at line 7", "Command1.Caption = \"a\"\r\n\r\n\r\n\r\n\r\n\r\nCommand1.Caption = = 3\r\n",
         "Langue/Language 7", "Expression attendue"},
        {"missing file", std::nullopt, "Langue/Language 0", "introuvable"},
        {"binary file", binary, "Langue/Language 1", ""},
        {"endless loop", "Command1.Caption = \"a\"\r\nDo\r\nLoop\r\n", "Langue/Language 2", "interrompu"},
        {"missing control", "Command1.Caption = \"a\"\r\nCommand9.Caption = \"b\"\r\n", "Langue/Language 2", ""},
        {"property a control lacks", "Command1.Text = \"a\"\r\n", "Langue/Language 1", ""},
    };
    for (const auto& c : cases) {
        LanguageRun run;
        test::FakeWindow w;
        w.add("Command1");
        run.pack("Form2.lge.unused", "");
        if (c.script)
            run.pack("Form1.lge", *c.script);
        run.phrases.useLanguage({"x"});
        auto message = run.translator.translate("Form1", w.node());
        ASSERT_TRUE(message) << c.what;
        EXPECT_EQ(message->title, c.title) << c.what;
        EXPECT_EQ(message->icon, MessageIcon::Critical) << c.what;
        EXPECT_NE(message->text.find(c.description), std::string::npos) << c.what << ": " << message->text;
        EXPECT_FALSE(message->text.empty()) << c.what;
        EXPECT_EQ(run.language, "") << c.what;
        EXPECT_FALSE(run.phrases.languageActive()) << c.what;
        // Later windows stay French: nothing runs for them.
        run.pack("Form3.lge", "Form3.Caption = \"Worksheet\"\r\n");
        test::FakeWindow later;
        EXPECT_FALSE(run.translator.translate("Form3", later.node())) << c.what;
        EXPECT_EQ(text(*later.self), "") << c.what;
    }
}

TEST(Translation, NothingOfAnEarlierWindowsScriptSurvives)
{
    LanguageRun run;
    test::FakeWindow first, second;
    run.pack("Form1.lge", "Sub Greet\r\nForm1.Caption = \"hi\"\r\nEnd Sub\r\nGreet\r\n");
    run.pack("Form3.lge", "Greet\r\n");
    EXPECT_FALSE(run.translator.translate("Form1", first.node()));
    EXPECT_EQ(text(*first.self), "hi");
    auto message = run.translator.translate("Form3", second.node());
    ASSERT_TRUE(message);
    EXPECT_EQ(message->title, "Langue/Language 1");
}

TEST(Translation, ColoursAndFlagsAreConvertedForTheControl)
{
    LanguageRun run;
    test::FakeWindow w;
    auto& c = w.add("Label1", -1, {{ControlProperty::BackColor, std::int64_t(0)}, {ControlProperty::Visible, true}});
    run.pack("Form1.lge", "Label1.BackColor = &H8000000F&\r\nLabel1.Visible = 0\r\nForm1.Caption = Label1.BackColor\r\n");
    EXPECT_FALSE(run.translator.translate("Form1", w.node()));
    EXPECT_EQ(c.properties[ControlProperty::BackColor], PropertyValue(std::int64_t(0x8000000F)));
    EXPECT_EQ(c.properties[ControlProperty::Visible], PropertyValue(false));
    EXPECT_EQ(text(*w.self), "2147483663");
}

}  // namespace
}  // namespace qor

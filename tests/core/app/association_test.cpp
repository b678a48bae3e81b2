#include <gtest/gtest.h>

#include "core/app/association.h"
#include "fake_file_type_registry.h"
#include "fake_settings.h"

namespace qor {
namespace {

TEST(Association, FiveValuesInTheStoreAndTheDesktopRegistration)
{
    AppState state;
    state.programFolder = "/opt/Mes Outils/QOR/";
    state.executableFile = "qor";
    test::FakeSettings store;
    test::FakeFileTypeRegistry registry;
    associateProjectFiles(state, store, registry);

    struct Case { const char* section; const char* value; };
    const Case cases[] = {
        {"Software\\QOR", "/opt/Mes Outils/QOR/qor"},
        {"QOR", "Source d'un menu QOR"},
        {".qor", "QOR"},
        {"QOR\\shell\\open\\command", "\"/opt/mes outils/qor/qor\" \"%1\""},
        {"QOR\\DefaultIcon", "/opt/mes outils/qor/qor,0"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(store.qor(c.section, "Default"), c.value) << c.section;
    EXPECT_EQ(store.values.size(), 5u);
    // The desktop gets the real path: its file system cares about case.
    EXPECT_EQ(registry.registrations,
              (std::vector<test::FakeFileTypeRegistry::Registration>{{"/opt/Mes Outils/QOR/qor", "Source d'un menu QOR"}}));
    EXPECT_EQ(filesAssociatedMessage(), (Message{"Fichiers associés !", "", MessageIcon::Information}));
}

}  // namespace
}  // namespace qor

// SPDX-License-Identifier: MIT
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>

#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

using orvane::AttributeInstance;
using orvane::Preferences;

namespace {

const QString Key = QStringLiteral("Render Mesh Faults");

} // namespace

class PreferencesFile : public testing::Test
{
protected:
    QString path() const { return m_folder.filePath(QStringLiteral("settings.ini")); }

    void write(const QVariant &value)
    {
        QSettings settings(path(), QSettings::IniFormat);
        settings.setValue(Key, value);
    }
    bool loaded(bool before)
    {
        const QSettings settings(path(), QSettings::IniFormat);
        Preferences preferences;
        preferences.renderMeshFaults.SetValue(before);
        preferences.Load(settings);
        return preferences.renderMeshFaults.Value();
    }

private:
    QTemporaryDir m_folder;
};

TEST(Preferences, offerTheirAttributeByName)
{
    auto *preferences = orvane::Kernel()->Preferences();
    auto *attribute = dynamic_cast<AttributeInstance<bool> *>(preferences->AttributeByID(Key));
    ASSERT_NE(attribute, nullptr);
    EXPECT_EQ(attribute, &preferences->renderMeshFaults);
    EXPECT_EQ(preferences->AttributeByID(QStringLiteral("No Such Thing")), nullptr);
}

TEST(Preferences, doNotRenderFaultsAtFirst)
{
    EXPECT_FALSE(Preferences().renderMeshFaults.Value());
}

TEST_F(PreferencesFile, givesBackWhatWasSaved)
{
    {
        Preferences preferences;
        preferences.renderMeshFaults.SetValue(true);
        QSettings settings(path(), QSettings::IniFormat);
        preferences.Save(settings);
    }
    EXPECT_TRUE(loaded(false));
}

TEST_F(PreferencesFile, thatIsMissingLeavesTheValueAsItIs)
{
    EXPECT_TRUE(loaded(true));
    EXPECT_FALSE(loaded(false));
}

TEST_F(PreferencesFile, mayHoldAFalse)
{
    write(false);
    EXPECT_FALSE(loaded(true));
}

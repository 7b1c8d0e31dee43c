// SPDX-License-Identifier: MIT
#include "tests/ui/settingsdialogtest.h"
#include "ui/retopologyhelpdialog.h"

#include <QApplication>
#include <QLineEdit>
#include <QLocale>
#include <QValidator>
#include <QtTest>

namespace {

// Makes a language the user's for its life.
class Language
{
public:
    explicit Language(const QLocale &locale) { QLocale::setDefault(locale); }
    ~Language() { QLocale::setDefault(m_before); }
    Language(const Language &) = delete;
    Language &operator=(const Language &) = delete;

private:
    QLocale m_before;
};

// A base class, so that the language is there before the dialog is made.
template <typename Setting>
class SettingsInputIn : private Setting, public SettingsDialogTest
{
protected:
    QString typed(const char *name, const char *text)
    {
        type(name, QLatin1String(text));
        return edit(name)->text();
    }
};

class English : public Language
{
public:
    English() : Language(QLocale::c()) {}
};

class German : public Language
{
public:
    German() : Language(QLocale(QLocale::German, QLocale::Germany)) {}
};

using SettingsInput = SettingsInputIn<English>;
using SettingsInputInGerman = SettingsInputIn<German>;

QValidator::State stateOf(const QLineEdit *edit, const char *text)
{
    QString input = QLatin1String(text);
    int position = input.size();
    return edit->validator()->validate(input, position);
}

} // namespace

TEST_F(SettingsInputInGerman, aPointIsTheDecimalSign)
{
    ASSERT_EQ(QLocale().toString(0.5), QStringLiteral("0,5"));
    show();
    for (const char *name : {"mergeDistance", "intersectionTolerance", "overrunTolerance"})
        EXPECT_EQ(typed(name, "0.5"), QStringLiteral("0.5")) << name;
    EXPECT_FLOAT_EQ(dialog.mergeDistance(), 0.005f);
    EXPECT_FLOAT_EQ(dialog.intersectionTolerance(), 0.005f);
    EXPECT_FLOAT_EQ(dialog.overrunTolerance(), 0.5f);
}

TEST_F(SettingsInputInGerman, aCommaIsNotTaken)
{
    show();
    EXPECT_EQ(typed("overrunTolerance", "0,5"), QStringLiteral("05"));
    EXPECT_EQ(dialog.overrunTolerance(), 5.0f);
    EXPECT_EQ(typed("maximumEdges", "1,000"), QStringLiteral("1000"));
    EXPECT_EQ(dialog.maximumEdges(), 1000);
}

TEST_F(SettingsInputInGerman, aPointIsNeverThereToGroupDigits)
{
    show();
    EXPECT_EQ(typed("overrunTolerance", "1.000"), QStringLiteral("1.00"));
    EXPECT_EQ(dialog.overrunTolerance(), 1.0f);
    EXPECT_EQ(typed("maximumEdges", "1.000"), QStringLiteral("1000"));
}

TEST_F(SettingsInputInGerman, theDefaultsAreWrittenAndReadAlike)
{
    EXPECT_EQ(edit("mergeDistance")->text(), QStringLiteral("30"));
    EXPECT_TRUE(edit("mergeDistance")->hasAcceptableInput());
    EXPECT_FLOAT_EQ(dialog.mergeDistance(), 0.30f);
}

TEST_F(SettingsInput, maximumEdgesTakeWholeNumbersFromThree)
{
    const QLineEdit *field = edit("maximumEdges");
    EXPECT_EQ(stateOf(field, "3"), QValidator::Acceptable);
    EXPECT_EQ(stateOf(field, "2147483647"), QValidator::Acceptable);
    EXPECT_EQ(stateOf(field, "2"), QValidator::Intermediate);
    EXPECT_EQ(stateOf(field, ""), QValidator::Intermediate);
    EXPECT_EQ(stateOf(field, "3.5"), QValidator::Invalid);
    EXPECT_EQ(stateOf(field, "-3"), QValidator::Invalid);
    EXPECT_EQ(stateOf(field, "1,000"), QValidator::Invalid);
    EXPECT_EQ(stateOf(field, "x"), QValidator::Invalid);
}

TEST_F(SettingsInput, percentagesTakeTwoDecimalsUpToTenThousand)
{
    for (const char *name : {"mergeDistance", "intersectionTolerance", "overrunTolerance"}) {
        const QLineEdit *field = edit(name);
        EXPECT_EQ(stateOf(field, "0"), QValidator::Acceptable) << name;
        EXPECT_EQ(stateOf(field, "12.34"), QValidator::Acceptable) << name;
        EXPECT_EQ(stateOf(field, "10000"), QValidator::Acceptable) << name;
        EXPECT_EQ(stateOf(field, "10000.01"), QValidator::Intermediate) << name;
        EXPECT_EQ(stateOf(field, "100000"), QValidator::Invalid) << name;
        EXPECT_EQ(stateOf(field, "12.345"), QValidator::Invalid) << name;
        EXPECT_EQ(stateOf(field, "-1"), QValidator::Invalid) << name;
        EXPECT_EQ(stateOf(field, "1e3"), QValidator::Invalid) << name;
        EXPECT_EQ(stateOf(field, "0,5"), QValidator::Invalid) << name;
        EXPECT_EQ(stateOf(field, ""), QValidator::Intermediate) << name;
    }
}

TEST_F(SettingsInput, eachKeyIsStoredAtOnce)
{
    show();
    clear("overrunTolerance");
    QTest::keyClick(edit("overrunTolerance"), Qt::Key_4);
    EXPECT_EQ(dialog.overrunTolerance(), 4.0f);
    QTest::keyClick(edit("overrunTolerance"), Qt::Key_Period);
    EXPECT_EQ(dialog.overrunTolerance(), 4.0f);
    QTest::keyClick(edit("overrunTolerance"), Qt::Key_5);
    EXPECT_EQ(dialog.overrunTolerance(), 4.5f);
}

TEST_F(SettingsInput, enterInAFieldCreatesTheMeshAndOpensNoHelp)
{
    const QSignalSpy asked(&dialog, &ManualRetopoDialog::createMesh);
    show();
    type("mergeDistance", QStringLiteral("20"));
    QTest::keyClick(edit("mergeDistance"), Qt::Key_Return);
    EXPECT_EQ(asked.count(), 1);
    EXPECT_TRUE(dialog.isVisible());
    for (const QWidget *window : QApplication::topLevelWidgets())
        EXPECT_EQ(qobject_cast<const RetopologyHelpDialog *>(window), nullptr);
}

TEST_F(SettingsInput, tabGoesFromTopToBottom)
{
    show();
    edit("maximumEdges")->setFocus();
    for (const char *name : {"mergeDistance", "intersectionTolerance", "overrunTolerance",
                             "ignoreSelfIntersections", "help", "createMesh", "close"}) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(dialog.focusWidget(), widget(name)) << name;
    }
}

TEST_F(SettingsInput, theFirstFieldHasTheKeyboardAtFirst)
{
    show();
    EXPECT_EQ(dialog.focusWidget(), edit("maximumEdges"));
}

// SPDX-License-Identifier: MIT
#include "host/desktop/window/menus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using orvane::Menus;

namespace {

class MenusTest : public testing::Test
{
protected:
    MenusTest() : m_menus(&m_bar)
    {
        for (const char *name : {"File", "Mesh", "Help"})
            m_menus.AddMenu(QLatin1String(name), QLatin1Char('&') + QLatin1String(name));
    }

    void add(const QString &text, int position, const QString &subMenu = {},
             const QString &menu = QStringLiteral("Mesh"))
    {
        m_menus.Add(menu, subMenu, new QAction(text, &m_bar), position);
    }

    static QStringList texts(const QMenu *menu)
    {
        QStringList all;
        for (const QAction *action : menu->actions())
            all.append(action->isSeparator() ? QStringLiteral("-") : action->text());
        return all;
    }

    QMenu *mesh() { return m_menus.Menu(QStringLiteral("Mesh")); }

    QMenuBar m_bar;
    Menus m_menus;
};

} // namespace

TEST_F(MenusTest, entriesStandByPositionWheneverTheyCome)
{
    std::mt19937 random(7);
    for (int round = 0; round < 20; ++round) {
        mesh()->clear();
        QVector<int> positions{100, 150, 200, 900, 950};
        std::shuffle(positions.begin(), positions.end(), random);
        for (int position : positions)
            add(QString::number(position), position);
        EXPECT_EQ(texts(mesh()),
                  QStringList({QStringLiteral("100"), QStringLiteral("150"), QStringLiteral("200"),
                               QStringLiteral("900"), QStringLiteral("950")}));
    }
}

TEST_F(MenusTest, onePositionKeepsTheOrderOfComing)
{
    add(QStringLiteral("first"), 100);
    add(QStringLiteral("second"), 100);
    add(QStringLiteral("before"), 50);
    EXPECT_EQ(texts(mesh()), QStringList({QStringLiteral("before"), QStringLiteral("first"),
                                          QStringLiteral("second")}));
}

TEST_F(MenusTest, aSubMenuStandsAtItsLowestEntry)
{
    add(QStringLiteral("host"), 500);
    add(QStringLiteral("late"), 900, QStringLiteral("Tools"));
    EXPECT_EQ(texts(mesh()), QStringList({QStringLiteral("host"), QStringLiteral("Tools")}));
    add(QStringLiteral("early"), 100, QStringLiteral("&Tools"));
    EXPECT_EQ(texts(mesh()), QStringList({QStringLiteral("Tools"), QStringLiteral("host")}));
    EXPECT_EQ(texts(mesh()->actions().constFirst()->menu()),
              QStringList({QStringLiteral("early"), QStringLiteral("late")}));
}

TEST_F(MenusTest, separatorsKeepTheirPlace)
{
    m_menus.AddSeparator(QStringLiteral("Mesh"), 400);
    add(QStringLiteral("below"), 500);
    add(QStringLiteral("above"), 300);
    EXPECT_EQ(texts(mesh()),
              QStringList({QStringLiteral("above"), QStringLiteral("-"), QStringLiteral("below")}));
}

TEST_F(MenusTest, anUnknownMenuIsMadeBeforeHelp)
{
    add(QStringLiteral("entry"), 100, {}, QStringLiteral("Extras"));
    add(QStringLiteral("other"), 50, {}, QStringLiteral("Extras"));
    QStringList titles;
    for (const QAction *action : m_bar.actions())
        titles.append(action->text());
    EXPECT_EQ(titles, QStringList({QStringLiteral("&File"), QStringLiteral("&Mesh"),
                                   QStringLiteral("Extras"), QStringLiteral("&Help")}));
    EXPECT_EQ(texts(m_menus.Menu(QStringLiteral("Extras"))),
              QStringList({QStringLiteral("other"), QStringLiteral("entry")}));
}

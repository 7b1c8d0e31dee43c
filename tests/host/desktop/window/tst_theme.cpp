// SPDX-License-Identifier: MIT
#include "host/desktop/window/theme.h"

#include <gtest/gtest.h>

using orvane::contrast;
using orvane::paletteOf;
using orvane::Theme;

namespace {

const double Readable = 4.5;

struct Pair
{
    QPalette::ColorRole text;
    QPalette::ColorRole ground;
};

const Pair Pairs[] = {{QPalette::WindowText, QPalette::Window},
                      {QPalette::Text, QPalette::Base},
                      {QPalette::Text, QPalette::AlternateBase},
                      {QPalette::ButtonText, QPalette::Button},
                      {QPalette::ButtonText, QPalette::Window},
                      {QPalette::HighlightedText, QPalette::Highlight},
                      {QPalette::ToolTipText, QPalette::ToolTipBase},
                      {QPalette::PlaceholderText, QPalette::Base},
                      {QPalette::Link, QPalette::Base},
                      {QPalette::Link, QPalette::Window},
                      {QPalette::LinkVisited, QPalette::Base},
                      {QPalette::BrightText, QPalette::Window}};

} // namespace

TEST(Theme, contrastIsMeasuredFromLuminance)
{
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21.0, 1e-9);
    EXPECT_NEAR(contrast(Qt::white, Qt::white), 1.0, 1e-9);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.478, 0.001);
}

TEST(Theme, everyTextIsReadable)
{
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        const QPalette palette = paletteOf(theme);
        for (const QPalette::ColorGroup group :
             {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (const Pair &pair : Pairs) {
                const double found =
                    contrast(palette.color(group, pair.text), palette.color(group, pair.ground));
                EXPECT_GE(found, Readable) << "theme " << int(theme) << " group " << group
                                           << " role " << pair.text << " on " << pair.ground;
            }
        }
    }
}

// Text of what is disabled is the system's own affair.
TEST(Theme, everyTextIsReadableInTheColoursOfTheSystem)
{
    const QPalette palette = paletteOf(Theme::System);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        for (const Pair &pair : Pairs) {
            if (pair.text == QPalette::BrightText)
                continue; // systems mean it for dark grounds; no text here has it
            const QColor text = palette.color(group, pair.text);
            EXPECT_EQ(text.alpha(), 255) << pair.text;
            EXPECT_GE(contrast(text, palette.color(group, pair.ground)), Readable)
                << "group " << group << " role " << pair.text << " on " << pair.ground;
        }
    }
    EXPECT_GT(contrast(palette.color(QPalette::Active, QPalette::Text),
                       palette.color(QPalette::Active, QPalette::PlaceholderText)),
              1.5)
        << "a placeholder looks typed";
}

TEST(Theme, disabledTextIsTold)
{
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        const QPalette palette = paletteOf(theme);
        EXPECT_NE(palette.color(QPalette::Disabled, QPalette::WindowText),
                  palette.color(QPalette::Active, QPalette::WindowText));
    }
}

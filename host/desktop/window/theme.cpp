// SPDX-License-Identifier: MIT
#include "host/desktop/window/theme.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

const double ReadableContrast = 4.5;
const int MendingSteps = 20;

// What the application began with; asked for before the first theme is set.
struct Beginning
{
    QString style = QApplication::style()->objectName();
    QPalette palette = QApplication::palette();
};

const Beginning &beginning()
{
    static const Beginning kept;
    return kept;
}

struct Colours
{
    QRgb window;
    QRgb base;
    QRgb alternateBase;
    QRgb button;
    QRgb text;
    QRgb faintText; // of what is disabled, and of placeholders
    QRgb highlight;
    QRgb highlightedText;
    QRgb link;
    QRgb brightText;
};

const Colours Light = {0xffeff0f2, 0xffffffff, 0xfff5f6f8, 0xffe6e8eb, 0xff1d2126,
                       0xff5c6470, 0xff1f5fa8, 0xffffffff, 0xff17569c, 0xffb3261e};
const Colours Dark = {0xff2b2e33, 0xff202327, 0xff272a2f, 0xff373b42, 0xffe6e8eb,
                      0xffa3aab4, 0xff2f6fb8, 0xffffffff, 0xff7db7f5, 0xffff8a80};

QPalette paletteFrom(const Colours &colours)
{
    QPalette palette(QColor(colours.button), QColor(colours.window));
    palette.setColor(QPalette::Window, colours.window);
    palette.setColor(QPalette::Base, colours.base);
    palette.setColor(QPalette::AlternateBase, colours.alternateBase);
    palette.setColor(QPalette::Button, colours.button);
    palette.setColor(QPalette::ToolTipBase, colours.base);
    palette.setColor(QPalette::ToolTipText, colours.text);
    palette.setColor(QPalette::WindowText, colours.text);
    palette.setColor(QPalette::Text, colours.text);
    palette.setColor(QPalette::ButtonText, colours.text);
    palette.setColor(QPalette::BrightText, colours.brightText);
    palette.setColor(QPalette::PlaceholderText, colours.faintText);
    palette.setColor(QPalette::Highlight, colours.highlight);
    palette.setColor(QPalette::HighlightedText, colours.highlightedText);
    palette.setColor(QPalette::Link, colours.link);
    palette.setColor(QPalette::LinkVisited, colours.link);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colours.faintText);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colours.button);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, colours.faintText);
    return palette;
}

struct TextOnGround
{
    QPalette::ColorRole text;
    QPalette::ColorRole ground;
};

const TextOnGround Texts[] = {
    {QPalette::WindowText, QPalette::Window},    {QPalette::Text, QPalette::Base},
    {QPalette::Text, QPalette::AlternateBase},   {QPalette::ButtonText, QPalette::Button},
    {QPalette::ButtonText, QPalette::Window},    {QPalette::ToolTipText, QPalette::ToolTipBase},
    {QPalette::PlaceholderText, QPalette::Base}, {QPalette::Link, QPalette::Base},
    {QPalette::Link, QPalette::Window},          {QPalette::LinkVisited, QPalette::Base}};

QColor mixed(const QColor &from, const QColor &to, double part)
{
    return QColor::fromRgbF(from.redF() + (to.redF() - from.redF()) * part,
                            from.greenF() + (to.greenF() - from.greenF()) * part,
                            from.blueF() + (to.blueF() - from.blueF()) * part);
}

// The colour, or one as near to it as can be read beside the other.
QColor readable(const QColor &colour, const QColor &other)
{
    // A faint text is often the usual one let through.
    const QColor solid = mixed(other, colour, colour.alphaF());
    const bool onLight = contrast(other, Qt::black) > contrast(other, Qt::white);
    QColor found = solid;
    for (int step = 1; step <= MendingSteps && contrast(found, other) < ReadableContrast; ++step)
        found = mixed(solid, onLight ? Qt::black : Qt::white, double(step) / MendingSteps);
    return found;
}

// What a system gives is not always readable: selected and faint texts above all.
QPalette mended(QPalette palette)
{
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        for (const TextOnGround &pair : Texts)
            palette.setColor(
                group, pair.text,
                readable(palette.color(group, pair.text), palette.color(group, pair.ground)));
        palette.setColor(group, QPalette::Highlight,
                         readable(palette.color(group, QPalette::Highlight),
                                  palette.color(group, QPalette::HighlightedText)));
    }
    return palette;
}

double luminance(const QColor &colour)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
           + 0.0722 * linear(colour.blueF());
}

} // namespace

QPalette paletteOf(Theme theme)
{
    switch (theme) {
    case Theme::Light:
        return paletteFrom(Light);
    case Theme::Dark:
        return paletteFrom(Dark);
    case Theme::System:
        break;
    }
    return mended(beginning().palette);
}

void applyTheme(Theme theme)
{
    const QPalette palette = paletteOf(theme); // notes the beginning before anything is changed
    // Other styles paint parts of their own colours, which a palette does not reach.
    const QString style = theme == Theme::System ? beginning().style : QStringLiteral("fusion");
    QApplication::setStyle(QStyleFactory::create(style));
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

double contrast(const QColor &a, const QColor &b)
{
    const double one = luminance(a);
    const double other = luminance(b);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

} // namespace orvane

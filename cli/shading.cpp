// SPDX-License-Identifier: MIT
#include "cli/shading.h"

#include <algorithm>
#include <array>
#include <cmath>

using orvane::Vector;

namespace PictureColour {
const QColor Clay(206, 200, 190);
const QColor DimmedClay(190, 190, 192);
const QColor Edge(28, 33, 43);
const QColor Curve(214, 26, 82);
const QColor Crossing(255, 255, 255);
const QColor Text(52, 58, 68);
const QColor BackgroundAbove(248, 249, 250);
const QColor BackgroundBelow(209, 214, 221);
} // namespace PictureColour

namespace {

struct Light
{
    Vector direction; // towards the light, of length 1
    Vector colour;    // linear
};

const Light Key = {{-0.46f, 0.61f, 0.645f}, {0.80f, 0.77f, 0.72f}};
const Light Fill = {{0.86f, 0.10f, 0.50f}, {0.15f, 0.18f, 0.23f}};
const Vector Ambient(0.245f, 0.255f, 0.275f);
const float SkyShare = 0.35f; // of the ambient light: more from above, less from below
const float RimShade = 0.42f; // light lost where a surface turns away from the eye
const float GlossShare = 0.07f;
const Vector GlossDirection(-0.254f, 0.336f, 0.907f); // half way between key light and eye

const int ToneSteps = 4096;

double encoded(double linear)
{
    return linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1.0 / 2.4) - 0.055;
}

double decoded(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

std::array<uchar, ToneSteps + 1> makeTones()
{
    std::array<uchar, ToneSteps + 1> tones;
    for (int i = 0; i <= ToneSteps; ++i)
        tones[i] = uchar(std::lround(encoded(double(i) / ToneSteps) * 255.0));
    return tones;
}

int tone(float linear)
{
    static const std::array<uchar, ToneSteps + 1> Tones = makeTones();
    return Tones[int(std::min(std::max(linear, 0.0f), 1.0f) * ToneSteps)];
}

float sixteenth(float value) // power
{
    const float fourth = value * value * value * value;
    return fourth * fourth * fourth * fourth;
}

} // namespace

Vector linearColour(const QColor &colour)
{
    return {float(decoded(colour.redF())), float(decoded(colour.greenF())),
            float(decoded(colour.blueF()))};
}

QRgb litColour(const Vector &normal, const Material &material)
{
    const float length = normal.Length();
    const Vector n = length > 0.0f ? normal / length : Vector(0.0f, 0.0f, 1.0f);
    const float away = 1.0f - std::min(std::max(n.z, 0.0f), 1.0f);
    Vector light = Ambient * (1.0f + SkyShare * n.y);
    light += Key.colour * std::max(Dot(n, Key.direction), 0.0f);
    light += Fill.colour * std::max(Dot(n, Fill.direction), 0.0f);
    light *= 1.0f - RimShade * away * away * away;
    const float even = 1.0f - material.contrast;
    light = light * material.contrast + Vector(even, even, even);
    const float gloss =
        GlossShare * material.contrast * sixteenth(std::max(Dot(n, GlossDirection), 0.0f));
    const Vector &c = material.colour;
    return qRgb(tone(c.x * light.x + gloss), tone(c.y * light.y + gloss),
                tone(c.z * light.z + gloss));
}

CornerClass cornerClass(int corners)
{
    return corners <= 3 ? Triangle : corners == 4 ? Quad : corners == 5 ? Pentagon : ManyCorners;
}

QColor cornerColour(CornerClass corners)
{
    static const QColor Colours[CornerClassCount] = {QColor(240, 185, 66), QColor(98, 169, 216),
                                                     QColor(60, 170, 120), QColor(150, 84, 150)};
    return Colours[corners];
}

// SPDX-License-Identifier: MIT
#include "tests/operation/agreement/planarscenes.h"

#include "tests/support/shapes.h"

#include <cmath>

using orvane::Vector;

namespace {

const float Pi = 3.14159265f;
const Vector Center(0.5f * PlanarSheetSize, 0.5f * PlanarSheetSize, 0.0f);
const int FewestStrokes = 10;
const int MostStrokes = 60;
const int Kinds = 5;

int intBetween(std::mt19937 &random, int low, int high)
{
    return low + int(random() % unsigned(high - low + 1));
}

Vector onCircle(float angle, float radius)
{
    return Vector(std::cos(angle), std::sin(angle), 0.0f) * radius;
}

PlanarStroke wavyStroke(bool upright, std::mt19937 &random)
{
    const float direction = (upright ? 0.5f * Pi : 0.0f) + randomBetween(random, -0.25f, 0.25f);
    const Vector along = onCircle(direction, 1.0f);
    const Vector side = onCircle(direction + 0.5f * Pi, 1.0f);
    const float offset = randomBetween(random, -13.0f, 13.0f);
    const float reach = randomBetween(random, 10.0f, 17.0f);
    const float amplitude = randomBetween(random, 0.1f, 1.2f);
    const float waves = randomBetween(random, 0.5f, 2.5f);
    const float phase = randomBetween(random, -Pi, Pi);
    const int points = intBetween(random, 30, 80);
    PlanarStroke stroke;
    for (int i = 0; i < points; ++i) {
        const float t = float(i) / float(points - 1);
        const float swing = offset + amplitude * std::sin(2.0f * Pi * waves * t + phase);
        stroke.places.append(Center + along * (reach * (2.0f * t - 1.0f)) + side * swing);
    }
    return stroke;
}

PlanarStroke chord(std::mt19937 &random)
{
    const float radius = 20.0f;
    const float start = randomBetween(random, -Pi, Pi);
    const float turn = randomBetween(random, 0.3f, 1.7f) * Pi;
    const Vector a = Center + onCircle(start, radius);
    const Vector b = Center + onCircle(start + turn, radius);
    const int points = intBetween(random, 2, 30);
    PlanarStroke stroke;
    for (int i = 0; i < points; ++i)
        stroke.places.append(a + (b - a) * (float(i) / float(points - 1)));
    return stroke;
}

PlanarStroke wobblyLoop(const Vector &center, float radius, std::mt19937 &random)
{
    const float wobble = randomBetween(random, 0.0f, 0.06f);
    const int waves = intBetween(random, 2, 5);
    const float phase = randomBetween(random, -Pi, Pi);
    const int points = intBetween(random, 40, 90);
    PlanarStroke stroke;
    stroke.closed = true;
    for (int i = 0; i < points; ++i) {
        const float angle = 2.0f * Pi * float(i) / float(points) + phase;
        const float swing = 1.0f + wobble * std::sin(float(waves) * angle);
        stroke.places.append(center + onCircle(angle, radius * swing));
    }
    return stroke;
}

PlanarStroke spoke(const Vector &center, float angle, float inner, float outer,
                   std::mt19937 &random)
{
    const float bend = randomBetween(random, -0.3f, 0.3f); // radians from end to end
    const int points = intBetween(random, 8, 30);
    PlanarStroke stroke;
    for (int i = 0; i < points; ++i) {
        const float t = float(i) / float(points - 1);
        stroke.places.append(center + onCircle(angle + bend * t, inner + (outer - inner) * t));
    }
    return stroke;
}

PlanarStroke figureEight(std::mt19937 &random)
{
    const float bearing = randomBetween(random, -Pi, Pi);
    const Vector center = Center + onCircle(bearing, randomBetween(random, 0.0f, 11.0f));
    const float turn = randomBetween(random, -Pi, Pi);
    const float length = randomBetween(random, 4.0f, 11.0f);
    const float width = length * randomBetween(random, 0.4f, 0.8f);
    const float phase = randomBetween(random, -Pi, Pi);
    const int points = intBetween(random, 50, 90);
    PlanarStroke stroke;
    stroke.closed = intBetween(random, 0, 1) == 1;
    for (int i = 0; i < points; ++i) {
        const float t = 2.0f * Pi * float(i) / float(points) + phase;
        stroke.places.append(center + onCircle(turn, length * std::sin(t))
                             + onCircle(turn + 0.5f * Pi, width * std::sin(2.0f * t)));
    }
    return stroke;
}

void addWavyStrokes(PlanarScene &scene, int count, std::mt19937 &random)
{
    for (int i = 0; i < count; ++i)
        scene.strokes.append(wavyStroke(i % 2 == 0, random));
}

void addChords(PlanarScene &scene, int count, std::mt19937 &random)
{
    for (int i = 0; i < count; ++i)
        scene.strokes.append(chord(random));
}

void addSpokedLoops(PlanarScene &scene, int count, std::mt19937 &random)
{
    const float bearing = randomBetween(random, -Pi, Pi);
    const Vector center = Center + onCircle(bearing, randomBetween(random, 0.0f, 4.0f));
    const int loops = qBound(2, count / intBetween(random, 3, 5), 10);
    const float innermost = randomBetween(random, 2.0f, 4.0f);
    const float outermost = randomBetween(random, 12.0f, 17.0f);
    for (int i = 0; i < loops; ++i) {
        const float radius = innermost + (outermost - innermost) * float(i) / float(loops - 1);
        scene.strokes.append(wobblyLoop(center, radius, random));
    }
    const int spokes = qMax(3, count - loops);
    for (int i = 0; i < spokes; ++i) {
        const float place = float(i) + randomBetween(random, -0.2f, 0.2f);
        const float inner = innermost * randomBetween(random, 0.2f, 0.8f);
        const float outer = outermost * randomBetween(random, 0.9f, 1.15f);
        scene.strokes.append(
            spoke(center, 2.0f * Pi * place / float(spokes), inner, outer, random));
    }
}

void addFigureEights(PlanarScene &scene, int count, std::mt19937 &random)
{
    for (int i = 0; i < count; ++i)
        scene.strokes.append(figureEight(random));
    scene.selfIntersections = true;
}

void addSomeOfEach(PlanarScene &scene, int count, std::mt19937 &random)
{
    addWavyStrokes(scene, count / 4, random);
    addChords(scene, count / 4, random);
    addFigureEights(scene, count / 4, random);
    addSpokedLoops(scene, count - 3 * (count / 4), random);
}

} // namespace

PlanarScene randomScene(int number, std::mt19937 &random)
{
    struct Kind
    {
        QString name;
        void (*add)(PlanarScene &, int, std::mt19937 &);
    };
    static const Kind kinds[Kinds] = {{QStringLiteral("wavy strokes"), addWavyStrokes},
                                      {QStringLiteral("chords"), addChords},
                                      {QStringLiteral("loops with spokes"), addSpokedLoops},
                                      {QStringLiteral("figure-eights"), addFigureEights},
                                      {QStringLiteral("some of each"), addSomeOfEach}};
    const Kind &kind = kinds[number % Kinds];
    const bool merges = number / Kinds % 2 == 1;
    PlanarScene scene;
    scene.kind = kind.name;
    scene.mergeDistance = merges ? randomBetween(random, 0.02f, 0.3f) : 0.0f;
    scene.overrun = randomBetween(random, 0.0f, 0.35f);
    kind.add(scene, intBetween(random, FewestStrokes, MostStrokes), random);
    return scene;
}

// SPDX-License-Identifier: MIT
#include "examples/headnet.h"

#include "examples/handdrawn.h"
#include "examples/headshape.h"
#include "examples/rings.h"

#include <algorithm>
#include <cmath>
#include <iterator>

using orvane::Vector;

namespace {

const float Spacing = 0.022f;       // between the points of a stroke, scene units
const float ShortestStroke = 0.25f; // shorter ones are slips of the pen, scene units
const float NeckMargin = 0.09f;     // from the cut of the neck, scene units

// The cross-section of head and neck at a height, about an ellipse.
struct Section
{
    float y;         // height, scene units
    float halfWidth; // along x
    float middle;    // along z
    float halfDepth; // along z
};

const Section Sections[] = {
    {-1.75f, 0.56f, -0.34f, 0.46f}, {-1.30f, 0.43f, -0.30f, 0.42f}, {-1.10f, 0.43f, -0.24f, 0.44f},
    {-0.95f, 0.45f, 0.00f, 0.66f},  {-0.70f, 0.51f, 0.04f, 0.72f},  {-0.35f, 0.62f, 0.00f, 0.78f},
    {0.00f, 0.70f, -0.12f, 0.82f},  {0.40f, 0.74f, -0.15f, 0.92f},
};

Section sectionAt(float y)
{
    const Section *below = std::begin(Sections);
    if (y <= below->y)
        return *below;
    for (const Section *above = below + 1; above != std::end(Sections); below = above++) {
        if (y > above->y)
            continue;
        const float t = (y - below->y) / (above->y - below->y);
        const auto mix = [t](float a, float b) {
            return a + (b - a) * t;
        };
        return {y, mix(below->halfWidth, above->halfWidth), mix(below->middle, above->middle),
                mix(below->halfDepth, above->halfDepth)};
    }
    return *below; // over the crown the strokes stay in their planes
}

// Place across (left to right) and along (back to front), -1 to 1 on the section's ellipse.
float across(const Vector &p)
{
    return p.x / sectionAt(p.y).halfWidth;
}

float along(const Vector &p)
{
    const Section section = sectionAt(p.y);
    return (p.z - section.middle) / section.halfDepth;
}

// A loop round the head in a plane that may sink towards the face.
struct Level
{
    const char *name;
    float y;     // at z = 0, scene units
    float slope; // how far it sinks for each unit of z
};

const Level Levels[] = {
    {"neck low", -1.52f, 0.05f},      {"neck middle", -1.30f, 0.12f},
    {"neck top", -1.08f, 0.20f},      {"under the jaw", -0.94f, 0.25f},
    {"jaw", -0.847f, 0.22f},          {"under the lip", -0.645f, 0.12f},
    {"over the lip", -0.495f, 0.10f}, {"nose", -0.36f, 0.08f},
    {"cheek", -0.20f, 0.06f},         {"lower lid", -0.026f, 0.06f},
    {"upper lid", 0.077f, 0.02f},     {"brow", 0.27f, 0.04f},
    {"forehead", 0.42f, 0.0f},        {"hairline", 0.57f, 0.0f},
};

const float Meridians[] = {0.0f, 0.12f, 0.33f, 0.60f, 0.74f};   // across
const float Arches[] = {0.40f, 0.155f, -0.06f, -0.30f, -0.46f}; // along

// An arch that ends on the crown's side, a little past a meridian.
struct HalfArch
{
    float along;
    float end; // across
};

const HalfArch HalfArches[] = {{0.69f, 0.64f}, {0.53f, 0.77f}, {-0.61f, 0.77f}, {-0.74f, 0.64f}};
const HalfArch Parting = {0.75f, 0.37f}; // a height, over the forehead only

std::vector<Ring> rings()
{
    const Vector x(1, 0, 0);
    const Vector y(0, 1, 0);
    const Vector z(0, 0, 1);
    const std::vector<float> three{1.0f, 0.8f, 0.62f};
    return {{"left eye", {0.315f, 0.0f, 0.535f}, x, y, z, 0.175f, 0.13f, three},
            {"right eye", {-0.315f, 0.0f, 0.535f}, x, y, z, 0.175f, 0.13f, three},
            {"mouth", {0.0f, -0.655f, 0.75f}, x, y, z, 0.29f, 0.17f, three},
            {"left ear", {0.695f, -0.10f, -0.10f}, -z, y, x, 0.26f, 0.34f, {1.0f}},
            {"right ear", {-0.695f, -0.10f, -0.10f}, z, y, -x, 0.26f, 0.34f, {1.0f}}};
}

class HeadNet
{
public:
    explicit HeadNet(const TriangleMesh &head) : m_head(head), m_rings(rings()) {}

    std::vector<NamedStroke> draw()
    {
        drawRings();
        for (const Level &level : Levels) {
            add(level.name,
                [&level](const Vector &p) { return p.y + level.slope * p.z - level.y; });
        }
        for (float place : Meridians) {
            addMirrored("meridian", place,
                        [](const Vector &p, float at) { return across(p) - at; });
        }
        for (float place : Arches)
            add("arch", [place](const Vector &p) { return along(p) - place; });
        for (const HalfArch &arch : HalfArches)
            addOnCrown("half arch", arch.end,
                       [&arch](const Vector &p) { return along(p) - arch.along; });
        addOnCrown("parting", Parting.end,
                   [](const Vector &p) { return p.z > 0.0f ? p.y - Parting.along : 1.0f; });
        return m_strokes;
    }

private:
    using Place = std::function<float(const Vector &)>;

    void drawRings()
    {
        for (const Ring &ring : m_rings) {
            for (float reach : ring.loops)
                keep(ring.name + " loop", ring.loop(reach));
        }
    }

    template <typename Function>
    void addMirrored(const std::string &name, float place, Function function)
    {
        add(name, [=](const Vector &p) { return function(p, place); });
        if (place != 0.0f)
            add(name, [=](const Vector &p) { return function(p, -place); });
    }

    void add(const std::string &name, const Place &function)
    {
        for (const Stroke &line : traceZero(m_head, function)) {
            for (const Stroke &part : bentAtRings(aboveTheCut(line), m_rings))
                keep(name, part);
        }
    }

    // The part of a line on the crown that is nearer to the middle than end (across).
    void addOnCrown(const std::string &name, float end, const Place &function)
    {
        for (const Stroke &line : traceZero(m_head, function)) {
            Stroke top;
            for (const Vector &p : rotatedToBottom(line).points) {
                if (p.y > 0.6f && std::abs(across(p)) < end)
                    top.points.push_back(p);
            }
            keep(name, top);
        }
    }

    // A closed line opened where it is farthest from the crown.
    static Stroke rotatedToBottom(Stroke line)
    {
        const auto lower = [](const Vector &a, const Vector &b) {
            return a.y < b.y;
        };
        if (line.closed)
            std::rotate(line.points.begin(),
                        std::min_element(line.points.begin(), line.points.end(), lower),
                        line.points.end());
        return line;
    }

    static Stroke aboveTheCut(const Stroke &line)
    {
        const Stroke turned = rotatedToBottom(line);
        Stroke result;
        result.closed = line.closed;
        for (const Vector &p : turned.points) {
            if (p.y > headshape::NeckCut + NeckMargin)
                result.points.push_back(p);
            else
                result.closed = false;
        }
        return result;
    }

    void keep(const std::string &name, const Stroke &stroke)
    {
        if (stroke.points.size() < 3 || lengthOf(stroke) < ShortestStroke)
            return;
        const int number = int(m_strokes.size()) + 1;
        m_strokes.push_back(
            {name + ' ' + std::to_string(number), handDrawn(stroke, Spacing, number)});
    }

    const TriangleMesh &m_head;
    std::vector<Ring> m_rings;
    std::vector<NamedStroke> m_strokes;
};

} // namespace

std::vector<NamedStroke> drawHeadNet(const TriangleMesh &head)
{
    return HeadNet(head).draw();
}

// SPDX-License-Identifier: MIT
#include <orvane/operations/drawonoperation.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/stream.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/refreshhost.h>
#include <orvane/operations/scenenodes.h>

#include <utility>

namespace orvane {

DrawOnOperation::DrawOnOperation(const Geometry *geometry) : m_next(geometry ? geometry->ID() : 0)
{}

bool DrawOnOperation::ExecuteAndInvert()
{
    Scene *scene = Kernel()->Scene();
    if (m_first) {
        const Node *geometry = sceneNode(m_next, Geometry::StaticClass());
        if (!geometry || geometry == scene->DrawingSurface())
            return false;
        m_chosen = scene->ChosenSurface();
    }
    if (scene->ChosenSurface() != m_chosen)
        return false;
    scene->ChooseSurface(m_next);
    std::swap(m_next, m_chosen);
    m_first = false;
    refreshHost();
    return true;
}

void DrawOnOperation::Serialize(Stream &stream)
{
    stream.Transfer(m_next);
    stream.Transfer(m_chosen);
    stream.Transfer(m_first);
}

const ClassDesc *DrawOnOperation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *DrawOnOperation::StaticClass()
{
    static const ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(),
                                "DrawOnOperation",
                                QT_TRANSLATE_NOOP("DrawOnOperation", "Choose Mesh to Draw On"),
                                createInstances<DrawOnOperation>, 0, 0);
    return &desc;
}

namespace {
const ClassDesc *const Registered = DrawOnOperation::StaticClass();
} // namespace

} // namespace orvane

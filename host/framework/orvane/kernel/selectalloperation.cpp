// SPDX-License-Identifier: MIT
#include <orvane/kernel/selectalloperation.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

namespace orvane {

bool SelectAllOperation::ExecuteAndInvert()
{
    const QVector<Geometry *> geometries = Kernel()->Scene()->Geometries();
    if (m_done) {
        for (Geometry *geometry : geometries)
            geometry->SetSelected(m_selectedBefore.contains(geometry->ID()));
        m_done = false;
        return true;
    }
    m_selectedBefore.clear();
    for (Geometry *geometry : geometries) {
        if (geometry->Selected())
            m_selectedBefore.append(geometry->ID());
        geometry->SetSelected(m_select);
    }
    m_done = true;
    return true;
}

void SelectAllOperation::Serialize(Stream &stream)
{
    char flags = char((m_select ? 1 : 0) | (m_done ? 2 : 0));
    stream.Transfer(flags);
    m_select = flags & 1;
    m_done = flags & 2;
    stream.Transfer(m_selectedBefore);
}

const ClassDesc *SelectAllOperation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *SelectAllOperation::StaticClass()
{
    static const ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(),
                                "SelectAllOperation",
                                QT_TRANSLATE_NOOP("SelectAllOperation", "Select All"),
                                createInstances<SelectAllOperation>, 0, ClassDesc::SelectionOnly);
    return &desc;
}

namespace {
const ClassDesc *const Registered = SelectAllOperation::StaticClass();
} // namespace

} // namespace orvane

// SPDX-License-Identifier: MIT
#include "tests/support/scenebytes.h"

#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/noderecord.h>
#include <orvane/kernel/scene.h>

#include <QBuffer>

QByteArray sceneBytes()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    orvane::Stream stream(&buffer, orvane::Stream::Writing);
    const orvane::Scene *scene = orvane::Kernel()->Scene();
    for (int i = 0; i < scene->NodeCount(); ++i) {
        orvane::recordOf(scene->NodeAt(i)).Serialize(stream);
        orvane::ScenePlace place = scene->PlaceOf(scene->NodeAt(i));
        stream.Transfer(place);
    }
    stream.WriteNode(scene->ActiveGeometry());
    stream.WriteNode(scene->DrawingSurface());
    return bytes;
}

// SPDX-License-Identifier: MIT
#include <orvane/kernel/preferences.h>

#include <QSettings>

namespace orvane {

Preferences::Preferences() : renderMeshFaults(this, QStringLiteral("Render Mesh Faults"), false) {}

void Preferences::Load(const QSettings &settings)
{
    const QVariant value = settings.value(renderMeshFaults.ID());
    if (value.isValid())
        renderMeshFaults.SetValue(value.toBool());
}

void Preferences::Save(QSettings &settings) const
{
    settings.setValue(renderMeshFaults.ID(), renderMeshFaults.Value());
}

} // namespace orvane

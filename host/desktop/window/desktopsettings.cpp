// SPDX-License-Identifier: MIT
#include "host/desktop/window/desktopsettings.h"

#include <QSettings>

#include <algorithm>

namespace orvane {

namespace {

const QString NavigationKey = QStringLiteral("Desktop/navigation");
const QString ThemeKey = QStringLiteral("Desktop/theme");
const QString Language = QStringLiteral("Desktop/language");
const QString AutosaveKey = QStringLiteral("Desktop/autosaveSeconds");
const QString ShadingKey = QStringLiteral("View/shading");
const QString Wireframe = QStringLiteral("View/wireframe");
const QString XRay = QStringLiteral("View/xRay");
const QString DimSource = QStringLiteral("View/dimSource");
const QString Grid = QStringLiteral("View/grid");
const QString Gizmo = QStringLiteral("View/gizmo");
const QString Hud = QStringLiteral("View/headsUp");
const QString CurvePoints = QStringLiteral("View/curvePoints");
const QString Snap = QStringLiteral("Tools/snap");
const QString Smoothing = QStringLiteral("Tools/smoothing");
const float MostSmoothing = 20.0f; // spacings

template <typename Enum>
void load(const QSettings &settings, const QString &key, Enum last, Enum *value)
{
    bool isNumber = false;
    const int number = settings.value(key).toInt(&isNumber);
    if (isNumber && number >= 0 && number <= int(last))
        *value = Enum(number);
}

void load(const QSettings &settings, const QString &key, bool *value)
{
    *value = settings.value(key, *value).toBool();
}

} // namespace

const int DesktopSettings::LeastAutosave = 5;
const int DesktopSettings::MostAutosave = 300;

void DesktopSettings::Load(const QSettings &settings)
{
    load(settings, NavigationKey, NavigationPreset::Viewer, &navigation);
    load(settings, ThemeKey, Theme::Dark, &theme);
    load(settings, ShadingKey, Shading::Matcap, &view.shading);
    language = settings.value(Language, language).toString();
    autosaveSeconds = std::clamp(settings.value(AutosaveKey, autosaveSeconds).toInt(),
                                 LeastAutosave, MostAutosave);
    load(settings, Wireframe, &view.wireframe);
    load(settings, XRay, &view.xRay);
    load(settings, DimSource, &view.dimSource);
    load(settings, Grid, &view.showGrid);
    load(settings, Gizmo, &view.showGizmo);
    load(settings, Hud, &view.showHud);
    load(settings, CurvePoints, &view.curvePoints);
    load(settings, Snap, &tools.snap);
    const float smoothing = settings.value(Smoothing, tools.smoothing).toFloat();
    if (smoothing >= 0.0f && smoothing <= MostSmoothing)
        tools.smoothing = smoothing;
}

void DesktopSettings::Save(QSettings &settings) const
{
    settings.setValue(NavigationKey, int(navigation));
    settings.setValue(ThemeKey, int(theme));
    settings.setValue(Language, language);
    settings.setValue(AutosaveKey, autosaveSeconds);
    settings.setValue(ShadingKey, int(view.shading));
    settings.setValue(Wireframe, view.wireframe);
    settings.setValue(XRay, view.xRay);
    settings.setValue(DimSource, view.dimSource);
    settings.setValue(Grid, view.showGrid);
    settings.setValue(Gizmo, view.showGizmo);
    settings.setValue(Hud, view.showHud);
    settings.setValue(CurvePoints, view.curvePoints);
    settings.setValue(Snap, tools.snap);
    settings.setValue(Smoothing, tools.smoothing);
}

} // namespace orvane

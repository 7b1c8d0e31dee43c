// SPDX-License-Identifier: MIT
#include "host/desktop/window/preferencesdialog.h"

#include <orvane/kernel/language.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>

namespace orvane {

namespace {

QComboBox *newBox(QWidget *parent, const char *name, const QStringList &texts, int current)
{
    auto *box = new QComboBox(parent);
    box->setObjectName(QLatin1String(name));
    box->addItems(texts);
    box->setCurrentIndex(current);
    return box;
}

QCheckBox *newCheck(QWidget *parent, const char *name, const QString &text, bool on)
{
    auto *check = new QCheckBox(text, parent);
    check->setObjectName(QLatin1String(name));
    check->setChecked(on);
    return check;
}

QString languageName(const QString &code)
{
    QString name = QLocale(code).nativeLanguageName();
    return name.isEmpty() ? code : name.replace(0, 1, name.at(0).toUpper());
}

QComboBox *newLanguageBox(QWidget *parent, const QString &current)
{
    auto *box = new QComboBox(parent);
    box->setObjectName(QStringLiteral("language"));
    box->addItem(PreferencesDialog::tr("As the system"), QString());
    const QStringList codes =
        translatedLanguages(resourceFolder() + QStringLiteral("/Translations"));
    for (const QString &code : codes)
        box->addItem(languageName(code), code);
    box->setCurrentIndex(qMax(0, box->findData(current)));
    return box;
}

} // namespace

QStringList translatedLanguages(const QString &folder)
{
    QStringList codes;
    const QStringList files =
        QDir(folder).entryList({QStringLiteral("*_*.qm")}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        codes.append(file.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0));
    codes.removeAll(QStringLiteral("en"));
    codes.removeDuplicates();
    codes.sort();
    return QStringList{QStringLiteral("en")} + codes;
}

QString navigationName(NavigationPreset preset)
{
    switch (preset) {
    case NavigationPreset::AltDrag:
        return PreferencesDialog::tr("Alt and drag: left orbits, middle pans, right zooms");
    case NavigationPreset::MiddleDrag:
        return PreferencesDialog::tr("Middle drag orbits, with Shift pans, with Ctrl zooms");
    case NavigationPreset::Viewer:
        break;
    }
    return PreferencesDialog::tr("Viewer: left drag orbits beside the surface, middle drag pans");
}

PreferencesDialog::PreferencesDialog(const DesktopSettings &settings, bool renderMeshFaults,
                                     QWidget *parent)
    : QDialog(parent),
      m_settings(settings),
      m_navigation(newBox(this, "navigation",
                          {navigationName(NavigationPreset::AltDrag),
                           navigationName(NavigationPreset::MiddleDrag),
                           navigationName(NavigationPreset::Viewer)},
                          int(settings.navigation))),
      m_theme(newBox(this, "theme", {tr("As the system"), tr("Light"), tr("Dark")},
                     int(settings.theme))),
      m_language(newLanguageBox(this, settings.language)),
      m_shading(newBox(this, "shading", {tr("Smooth"), tr("Flat"), tr("Clay")},
                       int(settings.view.shading))),
      m_autosave(new QSpinBox(this)),
      m_faults(newCheck(this, "renderMeshFaults", tr("Render Mesh Faults"), renderMeshFaults)),
      m_grid(newCheck(this, "showGrid", tr("Ground grid"), settings.view.showGrid)),
      m_hud(newCheck(this, "showHeadsUp", tr("Heads-up line: file, faces, tool, frame rate"),
                     settings.view.showHud))
{
    setObjectName(QStringLiteral("preferencesDialog"));
    setWindowTitle(tr("Preferences"));
    m_autosave->setObjectName(QStringLiteral("autosave"));
    m_autosave->setRange(DesktopSettings::LeastAutosave, DesktopSettings::MostAutosave);
    m_autosave->setValue(settings.autosaveSeconds);
    m_autosave->setSuffix(tr(" s"));
    auto *box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    box->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("accept"));
    box->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("reject"));
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QFormLayout(this);
    layout->addRow(tr("&Navigation:"), m_navigation);
    layout->addRow(tr("&Shading:"), m_shading);
    layout->addRow(QString(), m_faults);
    layout->addRow(QString(), m_grid);
    layout->addRow(QString(), m_hud);
    layout->addRow(tr("Co&lours:"), m_theme);
    layout->addRow(tr("L&anguage:"), m_language);
    layout->addRow(QString(), new QLabel(tr("Another language shows at the next start."), this));
    layout->addRow(tr("Keep unsaved &work every:"), m_autosave);
    layout->addRow(box);
}

DesktopSettings PreferencesDialog::Settings() const
{
    DesktopSettings settings = m_settings;
    settings.navigation = NavigationPreset(m_navigation->currentIndex());
    settings.theme = Theme(m_theme->currentIndex());
    settings.language = m_language->currentData().toString();
    settings.view.shading = Shading(m_shading->currentIndex());
    settings.view.showGrid = m_grid->isChecked();
    settings.view.showHud = m_hud->isChecked();
    settings.autosaveSeconds = m_autosave->value();
    return settings;
}

bool PreferencesDialog::RenderMeshFaults() const
{
    return m_faults->isChecked();
}

} // namespace orvane

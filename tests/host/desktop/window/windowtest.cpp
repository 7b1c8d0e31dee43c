// SPDX-License-Identifier: MIT
#include "tests/host/desktop/window/windowtest.h"

#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/theme.h"

#include <orvane/kernel/kernel.h>
#include <orvane/kernel/language.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTimer>
#include <QtTest>

namespace {

const int Settling = 60;      // milliseconds
const int LookAgain = 100;    // milliseconds
const int LookForDialog = 50; // milliseconds

} // namespace

WindowTest::WindowTest()
    : m_settings(m_folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat),
      m_before(QDir::currentPath())
{
    QStandardPaths::setTestModeEnabled(true);
    QDir::setCurrent(orvane::resourceFolder());
    openWindow();
}

WindowTest::~WindowTest()
{
    m_window.reset();
    orvane::applyTheme(orvane::Theme::System);
    QDir::setCurrent(m_before);
}

void WindowTest::openWindow(const orvane::PluginLoader *plugins)
{
    m_window.reset();
    orvane::Kernel()->NewScene();
    m_window.reset(new orvane::MainWindow(&m_settings, plugins));
    m_window->show();
    m_window->activateWindow();
    if (!QTest::qWaitForWindowExposed(m_window.data()))
        ADD_FAILURE() << "the window does not show";
    settle();
}

void WindowTest::openWindowWithPlugins(const QString &folder)
{
    m_plugins.AddFolder(folder);
    openWindow(&m_plugins);
    m_plugins.Load();
    m_plugins.Initialise();
}

void WindowTest::inDialog(const char *name, const std::function<void(QWidget &)> &look)
{
    bool seen = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        if (!seen)
            look(*dialog);
        seen = true;
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close(); // proposals of a field
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    timer.start(LookForDialog);
    action(name)->trigger();
    EXPECT_TRUE(seen) << name;
}

QString WindowTest::file(const char *name) const
{
    return m_folder.filePath(QLatin1String(name));
}

QString WindowTest::cubeFile() const
{
    const QString path = file("cube.obj");
    QFile obj(path);
    if (!obj.open(QIODevice::WriteOnly))
        ADD_FAILURE() << "no place for the cube";
    obj.write("v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nv 0 0 1\nv 1 0 1\nv 1 1 1\nv 0 1 1\n"
              "f 4 3 2 1\nf 5 6 7 8\nf 1 2 6 5\nf 2 3 7 6\nf 3 4 8 7\nf 4 1 5 8\n");
    return path;
}

QAction *WindowTest::action(const char *name) const
{
    return m_window->findChild<QAction *>(QLatin1String(name));
}

void WindowTest::press(int key, Qt::KeyboardModifiers modifiers)
{
    QWidget *target = QApplication::focusWidget();
    QTest::keyClick(target ? target : m_window.data(), Qt::Key(key), modifiers);
    settle();
}

void WindowTest::settle() const
{
    QTest::qWait(Settling);
}

FileDialogAnswer::FileDialogAnswer(const QString &path) : m_path(path)
{
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &FileDialogAnswer::answer);
    timer->start(LookAgain);
}

void FileDialogAnswer::answer()
{
    auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    auto *edit = dialog ? dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")) : nullptr;
    if (!edit)
        return;
    // The first Enter may only close the list of completions.
    if (dialog != m_last)
        ++m_count;
    m_last = dialog;
    edit->clear();
    QTest::keyClicks(edit, m_path);
    QTest::keyClick(edit, Qt::Key_Return);
}

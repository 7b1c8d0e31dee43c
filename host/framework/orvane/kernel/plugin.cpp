// SPDX-License-Identifier: MIT
#include <orvane/kernel/plugin.h>

#include <orvane/base/log.h>

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <exception>

#ifdef _WIN32
#    include <QDir>

#    include <windows.h>
#else
#    include <cstdlib>
#    include <dlfcn.h>
#endif

namespace orvane {

namespace {

#ifdef _WIN32
const int LongestPath = 32768; // characters
#endif

// What the host notes of a record stands here and not in the record, which a library of another
// version may have made shorter.
struct Declaration
{
    const Plugin *plugin = nullptr;
    QByteArray file;
    bool refused = false;
    bool initialised = false;
    QString failure;
};

QVector<Declaration> &declarations()
{
    static QVector<Declaration> all;
    return all;
}

Declaration *declarationOf(const Plugin *plugin)
{
    QVector<Declaration> &all = declarations();
    const auto found = std::find_if(all.begin(), all.end(), [plugin](const Declaration &each) {
        return each.plugin == plugin;
    });
    return found == all.end() ? nullptr : &*found;
}

bool isTaken(const QString &name)
{
    const QVector<Declaration> &all = declarations();
    return std::any_of(all.begin(), all.end(), [&name](const Declaration &each) {
        return !each.refused && each.plugin->FitsFramework() && each.plugin->Name() == name;
    });
}

// The file is found when the record comes, because a relative path leads elsewhere once the program
// has changed its folder. It stays bytes until somebody asks: records come before main, when Qt may
// not know the user's encoding yet.
#ifdef _WIN32
QByteArray libraryFile(const void *address)
{
    HMODULE module = nullptr;
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS
                                | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            static_cast<LPCWSTR>(address), &module))
        return {};
    QVector<wchar_t> path(LongestPath);
    const int length = int(GetModuleFileNameW(module, path.data(), LongestPath));
    return QDir::fromNativeSeparators(QString::fromWCharArray(path.data(), length)).toUtf8();
}
#else
QByteArray libraryFile(const void *address)
{
    Dl_info info;
    if (!dladdr(address, &info) || !info.dli_fname)
        return {};
    char *path = realpath(info.dli_fname, nullptr);
    const QByteArray file(path);
    std::free(path);
    return file;
}
#endif

QString run(Plugin::Initialiser initialiser)
{
    try {
        if (initialiser)
            initialiser();
        return {};
    } catch (const std::exception &error) {
        const QString text = QString::fromLocal8Bit(error.what());
        return text.isEmpty() ? QStringLiteral("an exception without words") : text;
    } catch (...) {
        return QStringLiteral("an exception of a kind of its own");
    }
}

} // namespace

Plugin::~Plugin()
{
    QVector<Declaration> &all = declarations();
    all.erase(std::remove_if(all.begin(), all.end(),
                             [this](const Declaration &each) { return each.plugin == this; }),
              all.end());
}

QVector<const Plugin *> Plugin::All()
{
    QVector<const Plugin *> plugins;
    for (const Declaration &each : qAsConst(declarations()))
        plugins.append(each.plugin);
    return plugins;
}

bool Plugin::FitsFramework() const
{
    return m_frameworkVersion == ORVANE_FRAMEWORK_VERSION;
}

QString Plugin::File() const
{
#ifdef _WIN32
    return QString::fromUtf8(declarationOf(this)->file);
#else
    return QFile::decodeName(declarationOf(this)->file);
#endif
}

bool Plugin::IsRefused() const
{
    return declarationOf(this)->refused;
}

QString Plugin::Initialise() const
{
    if (declarationOf(this)->initialised)
        return declarationOf(this)->failure;
    declarationOf(this)->initialised = true;
    const QString failure = run(m_initialiser);
    declarationOf(this)->failure = failure; // looked up anew: the initialiser may load others
    return failure;
}

void Plugin::declare()
{
    Declaration declaration;
    declaration.plugin = this;
    declaration.file = libraryFile(this);
    declaration.refused = FitsFramework() && isTaken(Name());
    if (declaration.refused)
        log(QStringLiteral("A second plug-in named %1 was refused.").arg(Name()));
    declarations().append(declaration);
}

} // namespace orvane

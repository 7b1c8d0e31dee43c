// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/kernel/frameworkversion.h>
#include <orvane/math/export.h>

#include <QString>
#include <QVector>

namespace orvane {

//! What a plug-in library says of itself: one static object, known to the host from the moment
//! the library is loaded until it is unloaded. It declares and does nothing; the work begins in
//! the initialiser.
// The class is not exported as a whole. Its constructor must be the library's own: it is what
// notes the version, and the dynamic linker may bind a visible inline function to the copy of
// another library.
class Plugin
{
public:
    using Initialiser = void (*)();

    //! description: the name to show. address: of a web page. buildStamp: date and time.
    //! A name that is taken already is refused and logged: the first one stays.
    ORVANE_HIDDEN Plugin(const char *name, const char *description, const char *author,
                         const char *address, const char *buildStamp, Initialiser initialiser)
        : m_frameworkVersion(ORVANE_FRAMEWORK_VERSION),
          m_name(name),
          m_description(description),
          m_author(author),
          m_address(address),
          m_buildStamp(buildStamp),
          m_initialiser(initialiser)
    {
        declare();
    }
    ORVANE_EXPORT ~Plugin();
    Plugin(const Plugin &) = delete;
    Plugin &operator=(const Plugin &) = delete;

    //! All records of the process in the order they came, refused ones too.
    ORVANE_EXPORT static QVector<const Plugin *> All();

    //! The version of the framework that the library was compiled with.
    int FrameworkVersion() const { return m_frameworkVersion; }
    //! Was it compiled with this version of the framework? If not, nothing below but File holds:
    //! another version may lay the record out differently.
    ORVANE_EXPORT bool FitsFramework() const;
    //! The library that the record lies in, without symbolic links; empty when it is in none.
    ORVANE_EXPORT QString File() const;
    //! Had another record its name first?
    ORVANE_EXPORT bool IsRefused() const;

    QString Name() const { return QString::fromUtf8(m_name); }
    QString Description() const { return QString::fromUtf8(m_description); }
    QString Author() const { return QString::fromUtf8(m_author); }
    QString Address() const { return QString::fromUtf8(m_address); }
    QString BuildStamp() const { return QString::fromUtf8(m_buildStamp); }

    //! Runs the initialiser, at the first call only. Answers what it threw, in words, and the same
    //! at every later call; empty when all is well.
    ORVANE_EXPORT QString Initialise() const;

private:
    ORVANE_EXPORT void declare();

    int m_frameworkVersion; // first, where a framework of any version finds it
    const char *m_name;
    const char *m_description;
    const char *m_author;
    const char *m_address;
    const char *m_buildStamp;
    Initialiser m_initialiser; // null when there is nothing to do
};

} // namespace orvane

// SPDX-License-Identifier: MIT
#include "host/cgmaterial/cgprogram.h"

#include "host/cgmaterial/programfile.h"

#include <orvane/base/log.h>
#include <orvane/kernel/language.h>

#include <Cg/cg.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSet>

#include <algorithm>

namespace orvane {

namespace {

// Lives as long as the process: combined programs may be used to the end, and nothing says then
// whether there still is an OpenGL context to take them from.
CGcontext context()
{
    static const CGcontext made = cgCreateContext();
    return made;
}

//! A file of programs as it is now.
struct ProgramFile
{
    explicit ProgramFile(const QString &path) : name(QDir(resourceFolder()).absoluteFilePath(path))
    {
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly)) {
            fault = QStringLiteral("it cannot be read");
            return;
        }
        const QByteArray bytes = file.readAll();
        print = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
        programs = unpackPrograms(bytes, &fault).value_or(QVector<ProgramText>());
    }

    //! Null when there is none, which fault then tells.
    const ProgramText *Find(int profile, const QByteArray &entry)
    {
        const auto found = std::find_if(
            programs.cbegin(), programs.cend(), [profile, &entry](const ProgramText &program) {
                return program.profile == profile && program.entry == entry;
            });
        if (found != programs.cend())
            return &*found;
        if (fault.isEmpty())
            fault = QStringLiteral("it has no \"%1\" for profile %2")
                        .arg(QString::fromUtf8(entry))
                        .arg(profile);
        return nullptr;
    }

    QString name;
    QByteArray print; // of its bytes; empty when it cannot be read
    QVector<ProgramText> programs;
    QString fault; // empty while there is none
};

CGprogram compile(const ProgramText &program, QString *fault)
{
    const CGprogram compiled =
        cgCreateProgram(context(), CG_SOURCE, program.text.constData(), CGprofile(program.profile),
                        program.entry.constData(), nullptr);
    if (!compiled) {
        const char *listing = cgGetLastListing(context());
        *fault = QStringLiteral("Cg refuses \"%1\": %2")
                     .arg(QString::fromUtf8(program.entry),
                          QString::fromUtf8(listing ? listing : "").simplified());
    }
    return compiled;
}

// Whoever draws tries again at every frame; one line tells it all until the file changes.
void complain(const ProgramFile &file)
{
    static QSet<QByteArray> told;
    const QString text = QStringLiteral("%1: there is no shader program; %2.")
                             .arg(QDir::toNativeSeparators(file.name), file.fault);
    const QByteArray mark = text.toUtf8() + file.print;
    if (told.contains(mark))
        return;
    told.insert(mark);
    log(text);
}

} // namespace

CgProgram::~CgProgram()
{
    destroy();
}

bool CgProgram::CreateFromFile(const QString &path, int profile, const QString &entry)
{
    destroy();
    ProgramFile file(path);
    if (const ProgramText *program = file.Find(profile, entry.toUtf8()))
        m_program = compile(*program, &file.fault);
    if (!m_program)
        complain(file);
    return m_program != nullptr;
}

void CgProgram::destroy()
{
    if (m_program)
        cgDestroyProgram(m_program);
    m_program = nullptr;
}

} // namespace orvane

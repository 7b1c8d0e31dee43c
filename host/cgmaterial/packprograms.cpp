// SPDX-License-Identifier: MIT
// Packs a Cg source into a file of programs, one for each entry that is named with its profile.
// usage: packprograms OUT.bin SOURCE.cg PROFILE:ENTRY...
#include "host/cgmaterial/programfile.h"

#include <Cg/cg.h>

#include <QFile>
#include <QStringList>
#include <QTextStream>

#include <cstdio>

namespace {

// 0 for none of those that are packed.
int profileNamed(const QString &name)
{
    if (name == QLatin1String("glslv"))
        return CG_PROFILE_GLSLV;
    if (name == QLatin1String("glslf"))
        return CG_PROFILE_GLSLF;
    return 0;
}

int fail(const QString &text)
{
    QTextStream(stderr) << "packprograms: " << text << '\n';
    return 1;
}

} // namespace

int main(int count, char **arguments)
{
    QStringList words;
    for (int i = 1; i < count; ++i)
        words.append(QString::fromLocal8Bit(arguments[i]));
    if (words.size() < 3)
        return fail(QStringLiteral("usage: packprograms OUT.bin SOURCE.cg PROFILE:ENTRY..."));
    QFile source(words.at(1));
    if (!source.open(QIODevice::ReadOnly))
        return fail(QStringLiteral("%1 cannot be read").arg(words.at(1)));
    const QByteArray text = source.readAll();

    QVector<orvane::ProgramText> programs;
    for (const QString &word : words.mid(2)) {
        const int profile = profileNamed(word.section(QLatin1Char(':'), 0, 0));
        const QByteArray entry = word.section(QLatin1Char(':'), 1).toUtf8();
        if (profile == 0 || entry.isEmpty())
            return fail(QStringLiteral("%1 is no profile (glslv, glslf) and entry").arg(word));
        programs.append({profile, entry, text});
    }

    const QByteArray bytes = orvane::packPrograms(programs);
    QFile packed(words.at(0));
    if (!packed.open(QIODevice::WriteOnly) || packed.write(bytes) != bytes.size()
        || !packed.flush())
        return fail(QStringLiteral("%1 cannot be written").arg(words.at(0)));
    return 0;
}

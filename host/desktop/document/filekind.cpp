// SPDX-License-Identifier: MIT
#include "host/desktop/document/filekind.h"

#include <QFile>
#include <QFileInfo>

namespace orvane {

namespace {

const qint64 ChunkSize = 1 << 16; // bytes

// Looks at the first word of each line of an OBJ text.
class ObjKeywords
{
public:
    // False once there is nothing more to find out.
    bool take(const QByteArray &text)
    {
        for (char c : text) {
            const bool isBlank = c == ' ' || c == '\t';
            if (c == '\n' || c == '\r') {
                m_length = 0;
            } else if (isBlank && m_length == 1) {
                m_hasFaces |= m_first == 'f';
                m_hasLines |= m_first == 'l';
                m_length = 2;
            } else if (!isBlank || m_length > 0) {
                m_first = m_length == 0 ? c : m_first;
                m_length = m_length == 0 ? 1 : 2;
            }
            if (m_hasFaces)
                return false;
        }
        return true;
    }

    bool areCurves() const { return m_hasLines && !m_hasFaces; }

private:
    char m_first = ' ';
    int m_length = 0; // of the line so far: none, one letter, more
    bool m_hasFaces = false;
    bool m_hasLines = false;
};

bool isCurveObj(QFile *file)
{
    ObjKeywords keywords;
    for (QByteArray text; !file->atEnd();) {
        text = file->read(ChunkSize);
        if (text.isEmpty() || !keywords.take(text))
            break;
    }
    return keywords.areCurves();
}

} // namespace

FileKind kindOfFile(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    QFile file(path);
    // A device or a pipe could keep us waiting.
    const bool isOpen = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
    if (suffix == QLatin1String("orvane") || (isOpen && file.peek(6) == "ORVANE"))
        return FileKind::Scene;
    if (suffix == QLatin1String("json"))
        return FileKind::Curves;
    if (suffix == QLatin1String("obj") && isOpen && isCurveObj(&file))
        return FileKind::Curves;
    return FileKind::Mesh;
}

} // namespace orvane

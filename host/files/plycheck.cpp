// SPDX-License-Identifier: MIT
#include "host/files/plycheck.h"

#include "host/files/objtext.h"
#include "host/files/textwords.h"

#include <QVector>

namespace orvane {

namespace {

struct NamedType
{
    std::string_view name;
    int size; // bytes
    bool whole;
};

const NamedType Types[] = {
    {"char", 1, true},  {"uchar", 1, true},  {"short", 2, true},    {"ushort", 2, true},
    {"int", 4, true},   {"uint", 4, true},   {"float", 4, false},   {"double", 8, false},
    {"int8", 1, true},  {"uint8", 1, true},  {"int16", 2, true},    {"uint16", 2, true},
    {"int32", 4, true}, {"uint32", 4, true}, {"float32", 4, false}, {"float64", 8, false},
};

const NamedType *typeNamed(std::string_view name)
{
    for (const NamedType &type : Types) {
        if (type.name == name)
            return &type;
    }
    return nullptr;
}

struct Property
{
    int size;      // of one value, bytes
    int countSize; // of a list's length, bytes; 0 for what is no list
};

struct Element
{
    QString name;
    int count;
    QVector<Property> properties;
};

class PlyChecker
{
public:
    explicit PlyChecker(const QByteArray &bytes) : m_bytes(bytes), m_lines(bytes, false) {}

    bool check()
    {
        if (!m_lines.next() || m_lines.words()[0] != "ply")
            return fail(QStringLiteral("this is no PLY file; expected \"ply\" as its first line"));
        while (m_lines.next()) {
            const Words &words = m_lines.words();
            if (words[0] == "end_header")
                return m_format == "ascii" ? checkText() : checkBinary();
            if (!readHeaderLine(words))
                return failInLine(QStringLiteral("\"%1 %2\" is no line of a PLY header")
                                      .arg(textOf(words[0]), objName(words)));
        }
        return fail(QStringLiteral("the header does not end; expected a line \"end_header\""));
    }

    const QString &error() const { return m_error; }

private:
    bool readHeaderLine(const Words &words)
    {
        if (words[0] == "comment" || words[0] == "obj_info")
            return true;
        if (words[0] == "format" && words.size() > 1) {
            m_format = words[1];
            return m_format == "ascii" || m_format == "binary_little_endian"
                   || m_format == "binary_big_endian";
        }
        if (words[0] == "element" && words.size() == 3) {
            const int count = integerIn(words[2]).value_or(-1);
            m_elements.append({textOf(words[1]), count, {}});
            return count >= 0;
        }
        return words[0] == "property" && !m_elements.isEmpty() && readProperty(words);
    }

    bool readProperty(const Words &words)
    {
        const bool list = words.size() == 5 && words[1] == "list";
        if (!list && words.size() != 3)
            return false;
        const NamedType *countType = list ? typeNamed(words[2]) : nullptr;
        const NamedType *type = typeNamed(words[list ? 3 : 1]);
        if (!type || (list && (!countType || !countType->whole)))
            return false;
        m_elements.last().properties.append({type->size, list ? countType->size : 0});
        return true;
    }

    bool checkText()
    {
        for (const Element &element : qAsConst(m_elements)) {
            for (int i = 0; i < element.count && !element.properties.isEmpty(); ++i) {
                if (!m_lines.next())
                    return failEnd(element, i);
                if (!isRowOf(element, m_lines.words()))
                    return failInLine(
                        QStringLiteral("%1 %2 does not have the numbers that the header "
                                       "announces")
                            .arg(element.name)
                            .arg(i + 1));
            }
        }
        return true;
    }

    static bool isRowOf(const Element &element, const Words &words)
    {
        size_t next = 0;
        for (const Property &property : element.properties) {
            const std::optional<int> length = property.countSize == 0 ? 1
                                              : next < words.size()   ? integerIn(words[next++])
                                                                      : std::nullopt;
            if (!length || *length < 0 || words.size() - next < size_t(*length))
                return false;
            for (int i = 0; i < *length; ++i) {
                if (!numberIn(words[next++]))
                    return false;
            }
        }
        return next == words.size();
    }

    bool checkBinary()
    {
        m_offset = m_bytes.size() - int(m_lines.rest().size());
        for (const Element &element : qAsConst(m_elements)) {
            for (int i = 0; i < element.count && !element.properties.isEmpty(); ++i) {
                if (!skipRow(element))
                    return failEnd(element, i);
            }
        }
        return true;
    }

    bool skipRow(const Element &element)
    {
        for (const Property &property : element.properties) {
            qint64 length = 1;
            if (property.countSize > m_bytes.size() - m_offset)
                return false;
            if (property.countSize > 0)
                length = takeCount(property.countSize);
            if (length * property.size > m_bytes.size() - m_offset)
                return false;
            m_offset += int(length * property.size);
        }
        return true;
    }

    qint64 takeCount(int size)
    {
        qint64 value = 0;
        for (int i = 0; i < size; ++i) {
            const int place = m_format == "binary_big_endian" ? i : size - 1 - i;
            value = value * 256 + quint8(m_bytes[m_offset + place]);
        }
        m_offset += size;
        return value;
    }

    bool failEnd(const Element &element, int index)
    {
        return fail(QStringLiteral("the file ends before %1 %2; its header announces %3 of them")
                        .arg(element.name)
                        .arg(index + 1)
                        .arg(element.count));
    }

    bool failInLine(const QString &text)
    {
        return fail(QStringLiteral("line %1: %2").arg(m_lines.line()).arg(text));
    }

    bool fail(const QString &text)
    {
        m_error = text + QLatin1Char('.');
        return false;
    }

    const QByteArray &m_bytes;
    TextLines m_lines;
    std::string_view m_format;
    QVector<Element> m_elements;
    int m_offset = 0; // in m_bytes
    QString m_error;
};

} // namespace

bool checkPly(const QByteArray &bytes, QString *error)
{
    PlyChecker checker(bytes);
    if (checker.check())
        return true;
    *error = checker.error();
    return false;
}

} // namespace orvane

// SPDX-License-Identifier: MIT
#include "tests/translations/messages.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

Message readMessage(QXmlStreamReader &xml, const QString &context)
{
    Message message;
    message.context = context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.finished = !xml.attributes().hasAttribute(QLatin1String("type"));
            message.translation = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

void readContext(QXmlStreamReader &xml, QVector<Message> &messages)
{
    QString context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            messages.append(readMessage(xml, context));
        else
            xml.skipCurrentElement();
    }
}

} // namespace

QString messageFolder()
{
    return QStringLiteral(QUILLMESH_MESSAGES);
}

QStringList messageFiles()
{
    return QDir(messageFolder()).entryList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name);
}

QVector<Message> messagesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the test cannot read %s", qPrintable(path));
    QXmlStreamReader xml(&file);
    QVector<Message> messages;
    xml.readNextStartElement(); // TS
    while (xml.readNextStartElement())
        readContext(xml, messages);
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    return messages;
}

QVector<Message> messagesIn(const QString &language)
{
    QVector<Message> messages;
    for (const QString &file : messageFiles()) {
        if (file.endsWith(QStringLiteral("_%1.ts").arg(language)))
            messages += messagesOf(QDir(messageFolder()).filePath(file));
    }
    return messages;
}

QStringList keysOf(const QVector<Message> &messages)
{
    QStringList keys;
    for (const Message &message : messages)
        keys.append(message.key());
    keys.sort();
    return keys;
}

QString translationOf(const QVector<Message> &messages, const char *context, const char *source)
{
    const auto found =
        std::find_if(messages.cbegin(), messages.cend(), [context, source](const Message &message) {
            return message.context == QLatin1String(context)
                   && message.source == QLatin1String(source);
        });
    if (found == messages.cend())
        qFatal("%s: \"%s\" has no translation", context, source);
    return found->translation;
}

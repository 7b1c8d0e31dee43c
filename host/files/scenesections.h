// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

namespace orvane {

//! The kinds of section of a scene file, as four letters in the order of the file's bytes.
enum SceneSectionKind : quint32 {
    MetaSection = 0x4154454d, // "META"
    NodeSection = 0x45444f4e, // "NODE"
    StepSection = 0x50455453, // "STEP"
};

//! A section as it was found.
struct SceneSection
{
    quint32 kind = 0;    // 0: not known
    QByteArray bytes;    // unpacked; empty when damaged
    qint64 position = 0; // in the file
    QString damage;      // what is wrong with it; empty when all is well
};

//! A scene file is a head, which says the format's version and the byte order of raw bytes, and a
//! row of sections. Each section is compressed and has its lengths and two checksums: one of its
//! own head, so that the lengths can be trusted, one of the bytes as they are stored. Numbers are
//! little-endian.
//! False when the device does not take it, or when the bytes cannot be packed.
bool writeSceneHead(QIODevice *device);
bool writeSection(QIODevice *device, quint32 kind, const QByteArray &bytes);

//! Reads the head of a file. False, and what was expected in *error, when it is none of ours.
bool readSceneHead(QIODevice *device, QString *error);
//! Reads the next section, of a device that can seek. One whose head is damaged ends where the next
//! sound head begins. False at the end of the device.
bool readSection(QIODevice *device, SceneSection *section);

} // namespace orvane

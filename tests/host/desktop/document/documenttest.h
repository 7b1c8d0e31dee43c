// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/document/document.h"
#include "tests/host/files/filetest.h"

namespace orvane {
class OrvaneCurve;
class SubdivisionLevel;
} // namespace orvane

//! Tests on the scene as a file, in a folder of their own.
class DocumentTest : public FileTest
{
protected:
    //! One undoable step that a scene can be saved with.
    void step(bool merge = false);
    //! A mesh file of that name.
    QString meshFile(const QString &name, orvane::SubdivisionLevel *mesh);
    //! A ball of radius 1 as a file, and two curves: one on it, one of which the second of three
    //! points is far off.
    QString ballFile();
    QString curveFile();
    QString sceneFile();
    //! What must work.
    void open(const QStringList &paths);
    void save(const QString &name);

    //! Curves of the scene, in order.
    QVector<orvane::OrvaneCurve *> sceneCurves() const;

    orvane::Document document;
    QString error;
};

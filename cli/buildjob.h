// SPDX-License-Identifier: MIT
#pragma once

#include "cli/batchreport.h"
#include "cli/options.h"

#include <QVector>

#include <functional>

class ManualRetopoOperation;
class StageClock;

namespace orvane {
class Mesh;
class OrvaneCurve;
} // namespace orvane

//! One run of `quillmesh build`: read, bind, build, report, write.
class BuildJob
{
public:
    explicit BuildJob(const BuildOptions &options) : m_options(options) {}

    //! Prints the report, or one sentence about what went wrong, and answers the exit code.
    int run();

private:
    bool outputsCanBeWritten(QString *error) const;
    bool read(QString *error);
    int refuseUnbound();
    int build();
    void noteMeshes(const ManualRetopoOperation &operation);
    void warnOfFaults() const;
    bool write(const ManualRetopoOperation &operation, QString *error);
    bool writePicture(const ManualRetopoOperation &operation, QString *error) const;
    void noteTime(const char *what, double seconds);

    BuildOptions m_options;
    BatchReport m_report;
    QVector<orvane::OrvaneCurve *> m_curves; // the scene's
    orvane::Mesh *m_source = nullptr;        // the scene's
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QVector>

class QCoreApplication;
class Table;

//! The words that all programs of the benchmarks know.
struct BenchOptions
{
    //! Ends the program, with a sentence, for words that make no sense and for --help.
    BenchOptions(const QCoreApplication &application, const QString &description,
                 const QStringList &usualShapes, const QVector<int> &usualSizes);

    //! Prints the table, and writes it to the JSON file when one was asked for.
    void put(const Table &table) const;

    QStringList shapes;  // of inputShapes() and BenchScene::modelNets()
    QVector<int> sizes;  // segments, ascending
    int pairs = 5;       // repetitions of each comparison with a peer
    QStringList peers;   // words of their names; empty: all
    double limit = 60.0; // seconds: what a run is expected to take at most, or it is left out
    QString json;        // path; empty: none
};

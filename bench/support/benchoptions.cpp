// SPDX-License-Identifier: MIT
#include "bench/support/benchoptions.h"

#include "bench/inputs/inputshapes.h"
#include "bench/support/benchscene.h"
#include "bench/support/table.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void refuse(const QString &sentence)
{
    std::fprintf(stderr, "%s\n", qPrintable(sentence));
    std::exit(2);
}

QString joined(const QVector<int> &numbers)
{
    QStringList words;
    for (int number : numbers)
        words.append(QString::number(number));
    return words.join(QLatin1Char(','));
}

} // namespace

BenchOptions::BenchOptions(const QCoreApplication &application, const QString &description,
                           const QStringList &usualShapes, const QVector<int> &usualSizes)
{
    const QStringList known = inputShapes() + BenchScene::modelNets();
    const QCommandLineOption shapesOption(
        QStringLiteral("shapes"), QStringLiteral("Inputs, of: ") + known.join(QStringLiteral(", ")),
        QStringLiteral("a,b,..."), usualShapes.join(QLatin1Char(',')));
    const QCommandLineOption sizesOption(QStringLiteral("sizes"), QStringLiteral("Segments."),
                                         QStringLiteral("n,m,..."), joined(usualSizes));
    const QCommandLineOption pairsOption(
        QStringLiteral("pairs"), QStringLiteral("Repetitions of each comparison with a peer."),
        QStringLiteral("n"), QString::number(pairs));
    const QCommandLineOption peersOption(
        QStringLiteral("peers"), QStringLiteral("Only peers with these words in their names."),
        QStringLiteral("a,b,..."));
    const QCommandLineOption limitOption(
        QStringLiteral("limit"),
        QStringLiteral("Leave out runs that are expected to take more seconds than this."),
        QStringLiteral("seconds"), QString::number(limit));
    const QCommandLineOption jsonOption(QStringLiteral("json"),
                                        QStringLiteral("Append the tables to a file as JSON."),
                                        QStringLiteral("file"));
    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    parser.addHelpOption();
    parser.addOptions(
        {shapesOption, sizesOption, pairsOption, peersOption, limitOption, jsonOption});
    parser.process(application);

    shapes = parser.value(shapesOption).split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &shape : qAsConst(shapes)) {
        if (!known.contains(shape))
            refuse(shape + QStringLiteral(": no such input; --help lists them."));
    }
    const QStringList sizeWords = parser.value(sizesOption).split(QLatin1Char(','));
    for (const QString &word : sizeWords) {
        sizes.append(word.toInt());
        if (sizes.last() < 100)
            refuse(word + QStringLiteral(": a size is a number of segments, 100 or more."));
    }
    std::sort(sizes.begin(), sizes.end());
    pairs = parser.value(pairsOption).toInt();
    limit = parser.value(limitOption).toDouble();
    if (pairs < 1 || !(limit > 0.0))
        refuse(QStringLiteral("--pairs and --limit take a number above zero."));
    peers = parser.value(peersOption).split(QLatin1Char(','), Qt::SkipEmptyParts);
    json = parser.value(jsonOption);
}

void BenchOptions::put(const Table &table) const
{
    if (table.isEmpty())
        return;
    table.print();
    if (!json.isEmpty() && !table.appendTo(json))
        refuse(json + QStringLiteral(": cannot be written to"));
}

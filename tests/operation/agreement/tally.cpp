// SPDX-License-Identifier: MIT
#include "tests/operation/agreement/tally.h"

#include "tests/operation/agreement/ring.h"

#include <iomanip>
#include <numeric>

namespace {

const char *const Causes[LeftOutCauses] = {"compared", "has holes",  "repeated vertex", "dangle",
                                           "cut edge", "cut vertex", "turned over"};

} // namespace

int Tally::shells() const
{
    return std::accumulate(m_shellsBy.cbegin(), m_shellsBy.cend(), 0);
}

int Tally::mismatches() const
{
    int count = 0;
    for (const Limit &limit : m_limits)
        count += limit.sum.mismatches.size();
    return count;
}

void Tally::addRedrawn(const QString &kind, Flaw flaw)
{
    ++(flaw == Flaw::LinksCross ? m_kinds[kind].crossing : m_kinds[kind].overlapping);
}

void Tally::addPiece(const QString &kind, const JudgedShells &piece)
{
    ++m_pieces;
    m_nodes += piece.graph.positions.size();
    m_links += piece.graph.links.size();
    m_mostNodes = qMax(m_mostNodes, piece.graph.positions.size());
    for (const QVector<int> &outline : piece.outlines)
        m_outlinesTurnedOver += turnsOver(outline, piece.graph.positions);
    m_invalidRings += piece.invalidRings;
    m_kinds[kind].shells += piece.shells.size();
    for (LeftOut cause : piece.leftOut)
        ++m_shellsBy[std::size_t(cause)];
}

void Tally::addFaces(const QString &limit, int maximumEdges, const FaceComparison &faces)
{
    const bool isFirst = !m_limits.contains(limit);
    Limit &entry = m_limits[limit];
    entry.lowest = isFirst ? maximumEdges : qMin(entry.lowest, maximumEdges);
    entry.highest = isFirst ? maximumEdges : qMax(entry.highest, maximumEdges);
    entry.sum.expected += faces.expected;
    entry.sum.found += faces.found;
    entry.sum.foundLeftOut += faces.foundLeftOut;
    entry.sum.unclearFaces += faces.unclearFaces;
    entry.sum.mismatches += faces.mismatches;
}

std::ostream &operator<<(std::ostream &out, const Tally &tally)
{
    const auto row = [&out](const QString &name, std::initializer_list<int> values) {
        out << std::left << std::setw(20) << name.toStdString() << std::right;
        for (int value : values)
            out << std::setw(12) << value;
        out << '\n';
    };
    out << "scenes                    drawn     crossed  overlapped      shells\n";
    for (auto kind = tally.m_kinds.cbegin(); kind != tally.m_kinds.cend(); ++kind)
        row(kind.key(), {kind->scenes, kind->crossing, kind->overlapping, kind->shells});
    out << "graphs                   pieces       nodes       links     largest"
           "  outlines turned over\n";
    row({}, {tally.m_pieces, tally.m_nodes, tally.m_links, tally.m_mostNodes,
             tally.m_outlinesTurnedOver});
    out << "shells\n";
    for (std::size_t cause = 0; cause < tally.m_shellsBy.size(); ++cause)
        row(QLatin1String(Causes[cause]), {tally.m_shellsBy[cause]});
    row(QStringLiteral("all"), {tally.shells()});
    out << "face limit               lowest     highest    expected       found  mismatches"
           "  others found  unclear faces\n";
    for (auto limit = tally.m_limits.cbegin(); limit != tally.m_limits.cend(); ++limit) {
        const FaceComparison &sum = limit->sum;
        row(limit.key(), {limit->lowest, limit->highest, sum.expected, sum.found,
                          sum.mismatches.size(), sum.foundLeftOut, sum.unclearFaces});
    }
    return out;
}

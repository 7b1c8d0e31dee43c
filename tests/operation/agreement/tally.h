// SPDX-License-Identifier: MIT
#pragma once

#include "tests/operation/agreement/facecomparison.h"
#include "tests/operation/agreement/planarity.h"

#include <QMap>
#include <QString>

#include <array>
#include <ostream>

//! What all scenes of a test came to.
class Tally
{
public:
    int shells() const;
    int compared() const { return m_shellsBy[std::size_t(LeftOut::No)]; }
    int turnedOver() const { return m_shellsBy[std::size_t(LeftOut::TurnsOver)]; }
    int invalidRings() const { return m_invalidRings; }
    int mismatches() const;

    void addScene(const QString &kind) { ++m_kinds[kind].scenes; }
    void addRedrawn(const QString &kind, Flaw flaw);
    void addPiece(const QString &kind, const JudgedShells &piece);
    void addFaces(const QString &limit, int maximumEdges, const FaceComparison &faces);

private:
    friend std::ostream &operator<<(std::ostream &out, const Tally &tally);

    struct Kind
    {
        int scenes = 0;
        int crossing = 0;    // drawn again because links crossed
        int overlapping = 0; // drawn again because links or nodes lay on one another
        int shells = 0;
    };
    struct Limit
    {
        int lowest = 0;
        int highest = 0;
        FaceComparison sum;
    };

    QMap<QString, Kind> m_kinds;
    QMap<QString, Limit> m_limits;
    int m_pieces = 0;
    int m_nodes = 0;
    int m_links = 0;
    int m_mostNodes = 0;          // of a piece
    int m_outlinesTurnedOver = 0; // that only the face limit tells from a face
    int m_invalidRings = 0;
    std::array<int, LeftOutCauses> m_shellsBy{}; // by cause for leaving them out
};

std::ostream &operator<<(std::ostream &out, const Tally &tally);

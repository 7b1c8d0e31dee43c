// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

#include <gtest/gtest.h>

class IntersectionNode;

//! Do the rules of the graph hold at every node of the list? Links symmetric, no link to itself,
//! none twice, none to null; flag lists as long as the neighbours; each curve once and not null.
//! Names the first node that breaks one, by its place in the list.
testing::AssertionResult isSound(const QList<IntersectionNode *> &nodes);

//! Do all links of these nodes lead to nodes of the list?
testing::AssertionResult isClosedUnderLinks(const QList<IntersectionNode *> &nodes);

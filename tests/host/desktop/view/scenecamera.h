// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/camera.h"

#include <random>

const QSizeF ViewSize(1280.0, 720.0);

//! A box with its corners at low and high.
orvane::AxisAlignedBoundingBox boxBetween(const orvane::Vector &low, const orvane::Vector &high);
orvane::AxisAlignedBoundingBox randomBox(std::mt19937 &random);
orvane::Vector randomPointIn(const orvane::AxisAlignedBoundingBox &box, std::mt19937 &random);
//! Over ViewSize, with the box as its scene and in view, from a random side.
orvane::Camera cameraAt(const orvane::AxisAlignedBoundingBox &box, bool orthographic,
                        std::mt19937 &random);
QPointF randomPixel(std::mt19937 &random);
//! How far apart two pixels are.
double apart(const QPointF &a, const QPointF &b);

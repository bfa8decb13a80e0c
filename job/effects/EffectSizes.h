// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QMargins>
#include <QSize>

/// What effects that change the size of a picture make of it, in whole pixels. Parameters are complete and accepted.
namespace BatchJob {

/// The widths of the border around a picture of `size`.
QMargins BorderOf(const QSize& size, const QJsonObject& parameters);

QSize SizeWithBorder(const QSize& size, const QJsonObject& parameters);

/// By how much a picture is turned clockwise: degrees from 0, and less than 360.
double TurnOf(const QJsonObject& parameters);

/// The smallest canvas that holds the turned picture.
QSize TurnedCanvas(const QSize& size, const QJsonObject& parameters);

} // namespace BatchJob

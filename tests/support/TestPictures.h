// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// Pictures that tests make, write and look at.

/// Starts the imaging library for this process. Called first thing by tests that use the rest.
void StartPictures();

/// 8 bits, RGB, without alpha: red grows from left to right, green from top to bottom, blue is a chequerboard of
/// `square` pixels. Every place differs, so that a picture that is turned or moved shows it.
BatchWorker::Picture Chart(int width, int height, int square = 8);

/// Why there can be no file of `format`, or of the extension `format`, here; null where there can be. The libraries for
/// Windows have no encoder of HEIF.
const char* MissingEncoder(const QString& format);

/// The same for files that tests write or read by the imaging library itself, with options and metadata: that for
/// Windows knows neither JPEG XL nor JPEG 2000.
const char* MissingInTests(const QString& format);

/// Skips a test or a row if `reason`, one of the above, is not null.
#define SKIP_WHERE(reason)                                                                                             \
    if (const char* const missing = (reason)) {                                                                        \
        QSKIP(missing);                                                                                                \
    }                                                                                                                  \
    Q_UNUSED(0)

/// The file's pixels as they are stored, in memory. What the imaging library does not know is read as the worker does.
BatchWorker::Picture ReadPicture(const QString& file);

/// Writes `picture`, in the format of the file's extension. `options` are the library's, such as "[Q=90]". What it does
/// not know is written as the worker does, with the options that a job has by default.
void WritePicture(const BatchWorker::Picture& picture, const QString& file, const char* options = "");

/// Writes `picture`, grey or RGB of 8 or 16 bits, as a TIFF file with any profile; later versions of the imaging
/// library leave out one that does not fit.
void WriteTiff(const BatchWorker::Picture& picture, const QByteArray& profile, const QString& file);

/// The largest difference of any two values at the same place; infinite for pictures of different size or bands.
double LargestDifference(const BatchWorker::Picture& left, const BatchWorker::Picture& right);

/// The same, as the mean over all values.
double MeanDifference(const BatchWorker::Picture& left, const BatchWorker::Picture& right);

/// A form that stages hand on: 1 or 3 channels of colour, 8 or 16 bits, with alpha or without.
struct PictureForm
{
    int colours = 3;
    int bits = 8;
    bool hasAlpha = false;

    int Bands() const { return colours + (hasAlpha ? 1 : 0); }
    int Largest() const { return bits == 16 ? 65'535 : 255; }
};

/// All eight.
QVector<PictureForm> AllForms();

/// The form of `picture`; fails with an empty one when it has none of them.
PictureForm FormOf(const BatchWorker::Picture& picture);

bool operator==(const PictureForm& a, const PictureForm& b);

/// `values` line by line, the channels of a pixel together.
BatchWorker::Picture FromValues(const PictureForm& form, int width, int height, const QVector<int>& values);

QVector<int> ValuesOf(const BatchWorker::Picture& picture);

/// The values of one channel.
QVector<int> ChannelOf(const BatchWorker::Picture& picture, int band);

/// Values by chance, the same in every run.
BatchWorker::Picture Noise(const PictureForm& form, int width, int height, unsigned seed = 1);

/// Eight bits: every value from 0 to 255 once in each channel, the channels in different orders.
BatchWorker::Picture EveryValue(const PictureForm& form);

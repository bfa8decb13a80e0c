#pragma once

#include "server/worker/pixels/Picture.h"

#include <QByteArray>
#include <QString>

/// Pictures that tests make, write and look at.

/// Starts the imaging library for this process. Called first thing by tests that use the rest.
void StartPictures();

/// 8 bits, RGB, without alpha: red grows from left to right, green from top to bottom, blue is a chequerboard of
/// `square` pixels. Every place differs, so that a picture that is turned or moved shows it.
BatchWorker::Picture Chart(int width, int height, int square = 8);

/// The file's pixels as they are stored, in memory.
BatchWorker::Picture ReadPicture(const QString& file);

/// Writes `picture`, in the format of the file's extension. `options` are the library's, such as "[Q=90]".
void WritePicture(const BatchWorker::Picture& picture, const QString& file, const char* options = "");

/// The largest difference of any two values at the same place; infinite for pictures of different size or bands.
double LargestDifference(const BatchWorker::Picture& left, const BatchWorker::Picture& right);

/// The same, as the mean over all values.
double MeanDifference(const BatchWorker::Picture& left, const BatchWorker::Picture& right);

#pragma once

#include "server/worker/pixels/Picture.h"

#include <QVector>

/// Small pictures for tests, of the forms that stages hand on, and their values.
namespace TestPictures {

/// One form: 1 or 3 channels of colour, 8 or 16 bits, with alpha or without.
struct Form
{
    int colours = 3;
    int bits = 8;
    bool hasAlpha = false;

    int Bands() const { return colours + (hasAlpha ? 1 : 0); }
    int Largest() const { return bits == 16 ? 65'535 : 255; }
};

/// All eight.
QVector<Form> AllForms();

/// The form of `picture`; fails with an empty one when it has none of them.
Form FormOf(const BatchWorker::Picture& picture);

bool operator==(const Form& a, const Form& b);

/// `values` line by line, the channels of a pixel together.
BatchWorker::Picture FromValues(const Form& form, int width, int height, const QVector<int>& values);

QVector<int> ValuesOf(const BatchWorker::Picture& picture);

/// The values of one channel.
QVector<int> ChannelOf(const BatchWorker::Picture& picture, int band);

/// Values by chance, the same in every run.
BatchWorker::Picture Noise(const Form& form, int width, int height, unsigned seed = 1);

/// Eight bits: every value from 0 to 255 once in each channel, the channels in different orders.
BatchWorker::Picture EveryValue(const Form& form);

} // namespace TestPictures

#pragma once

#include "job/values/ParameterSchema.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

/// The formats that results are written in, as data. Everything here is safe on any thread.
namespace BatchJob {

struct FormatSchema
{
    QString name;           ///< as it stands in a job, such as "JPEG"
    QStringList extensions; ///< lower case, without dot; results get the first
    bool holdsTransparency = false;
    bool holdsCmyk = false;
    QVector<int> bitDepths;           ///< bits a channel, ascending
    int longestSide = 0;              ///< pixels
    QVector<ParameterSchema> options; ///< what `formatOptions` of a job may hold for it
};

/// Every format that results can be written in. "Original" is not among them: it stands for the format of each input.
const QVector<FormatSchema>& Formats();

/// The format named `name`; null when there is none. Names differ in letter case.
const FormatSchema* FindFormat(const QString& name);

/// The format whose files have this extension, in any letter case and without dot; null when results are never
/// written with it.
const FormatSchema* FindFormatByExtension(const QString& extension);

/// Checks the options of a job with format `format`, which may be "Original": then every option that some format takes
/// is accepted, none is completed with a default, and each picture uses those that its format has.
CheckedParameters CheckFormatOptions(const QString& format, const QByteArray& options);

/// The options among `accepted`, the checked options of a job, that apply to pictures written in `format`, complete
/// with the defaults of that format. A bit depth that the format does not have becomes the next lower one that it has.
QJsonObject OptionsFor(const FormatSchema& format, const QJsonObject& accepted);

/// The format that a file has whose first bytes are `head`, such as "JPEG" or "RAW"; empty when they are those of no
/// picture that the server reads. 64 bytes are enough. The bytes decide; only where they do not tell, as with camera
/// RAW files that are TIFF files too, the extension does. Only formats that Formats() lists can be written.
QString FormatOfFile(const QByteArray& head, const QString& extension);

/// The extensions, lower case and without dot, of all files that the server reads.
const QStringList& ReadableExtensions();

} // namespace BatchJob

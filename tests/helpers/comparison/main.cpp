// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Inputs.h"
#include "TestPictures.h"

#include "server/worker/pixels/EmbeddedProfile.h"

#include <QFile>
#include <QTextStream>

#include <cstdlib>

using namespace BatchWorker;

/// Makes pictures for scripts/compare-windows, and says how far two are from each other.

namespace {

/// What both pictures have to be the same in.
QString FormText(const Picture& picture)
{
    return QStringLiteral("%1x%2x%3 %4")
        .arg(picture.width())
        .arg(picture.height())
        .arg(picture.bands())
        .arg(QLatin1String(picture.format() == VIPS_FORMAT_USHORT ? "deep" : "plain"));
}

// In steps of 8 bits.
QString Distance(const Picture& left, const Picture& right)
{
    const QString form = FormText(left);
    if (FormText(right) != form) {
        return QStringLiteral("form\t%1 and %2").arg(form, FormText(right));
    }
    const double step = left.format() == VIPS_FORMAT_USHORT ? 257.0 : 1.0;
    return QStringLiteral("%1\t%2\t%3")
        .arg(LargestDifference(left, right) / step, 0, 'f', 3)
        .arg(MeanDifference(left, right) / step, 0, 'f', 5)
        .arg(QLatin1String(ProfileOf(left) == ProfileOf(right) ? "same" : "other"));
}

/// Each line of standard input names two files, between them a tab. It comes back with the largest and the mean
/// difference, and whether the colour profiles are the same.
void Compare()
{
    QTextStream input(stdin);
    QTextStream output(stdout);
    for (QString line = input.readLine(); !line.isNull(); line = input.readLine()) {
        const QStringList files = line.split(QLatin1Char('\t'));
        QString distance;
        try {
            distance = Distance(ReadPicture(files.value(0)), ReadPicture(files.value(1)));
        } catch (const vips::VError& problem) {
            distance = QStringLiteral("unreadable\t%1").arg(QString::fromUtf8(problem.what()).simplified());
            vips_error_clear();
        }
        output << line << '\t' << distance << '\n';
    }
}

void WriteProfileOf(const QString& picture, const QString& path)
{
    const QByteArray profile = ProfileOf(ReadPicture(picture));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(profile) != profile.size()) {
        qFatal("%s cannot be written", qUtf8Printable(path));
    }
}

} // namespace

int main(int argc, char** argv)
{
    StartPictures();
    if (argc == 4 && qstrcmp(argv[1], "make") == 0) {
        WriteInputs(QFile::decodeName(argv[2]), QFile::decodeName(argv[3]));
    } else if (argc == 4 && qstrcmp(argv[1], "profile") == 0) {
        WriteProfileOf(QFile::decodeName(argv[2]), QFile::decodeName(argv[3]));
    } else if (argc == 2 && qstrcmp(argv[1], "compare") == 0) {
        Compare();
    } else {
        QTextStream(stderr) << "Usage: comparison make PHOTO FOLDER | profile PICTURE FILE | compare\n";
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

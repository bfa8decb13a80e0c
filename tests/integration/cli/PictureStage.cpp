// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureStage.h"

#include "TestPictures.h"

#include <QDir>
#include <QFileInfo>

PictureStage::PictureStage()
    : environment(QProcessEnvironment::systemEnvironment())
{
    StartPictures();
    QDir(root.path()).mkpath(QStringLiteral("home"));
    QDir(root.path()).mkpath(QStringLiteral("tmp"));
    environment.insert(QStringLiteral("HOME"), Path(QStringLiteral("home")));
    environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
    environment.insert(QStringLiteral("TMPDIR"), Path(QStringLiteral("tmp")));
}

QString PictureStage::Write(const QString& name, const QSize& size, const Exif& exif) const
{
    const QString path = Path(name);
    QDir().mkpath(QFileInfo(path).path());
    BatchWorker::Picture picture = Chart(size.width(), size.height()).copy_memory();
    if (exif.captured.isValid()) {
        const QByteArray text = exif.captured.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")).toLatin1();
        picture.set("exif-ifd2-DateTimeOriginal", text.constData());
    }
    if (exif.orientation != 0) {
        picture.set(VIPS_META_ORIENTATION, exif.orientation);
    }
    WritePicture(picture, path);
    return path;
}

CliRun PictureStage::Run(const QString& arguments) const
{
    return CliRun::Of(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts), root.path(), environment);
}

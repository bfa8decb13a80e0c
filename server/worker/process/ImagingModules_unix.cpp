// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ImagingModules.h"

#include <gmodule.h>
#include <vips/vips8>

#include <QByteArray>

namespace BatchWorker {

namespace {

/// The library looks for modules below its prefix, and takes that from the environment.
bool StartWithoutModules(const char* program)
{
    constexpr char prefix[] = "VIPSHOME";
    const QByteArray before = qgetenv(prefix);
    qputenv(prefix, "/dev/null");
    const bool isStarted = VIPS_INIT(program) == 0;
    if (before.isNull()) {
        qunsetenv(prefix);
    } else {
        qputenv(prefix, before);
    }
    return isStarted;
}

/// Loads the one module that known formats need. An installation may have it built in.
void LoadHeifModule()
{
    const QByteArray version = QByteArray::number(vips_version(0)) + '.' + QByteArray::number(vips_version(1));
    const QByteArray path =
        QByteArrayLiteral(BATCHWORKER_VIPS_FOLDER "/vips-modules-") + version + "/vips-heif." G_MODULE_SUFFIX;
    if (GModule* const module = g_module_open(path.constData(), G_MODULE_BIND_LAZY)) {
        g_module_make_resident(module);
    }
}

} // namespace

bool StartWithKnownModules(const char* program)
{
    if (!StartWithoutModules(program)) {
        return false;
    }
    LoadHeifModule();
    return true;
}

} // namespace BatchWorker

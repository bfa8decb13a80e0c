#pragma once

#include <QStringList>

namespace BatchCli {

/// Keeps files from taking the place of standard channels that are closed, and makes file names and texts UTF-8 for
/// this process and its children, whatever the locale. Copies of this process that have not become another program yet
/// end with it, where the system can do that (Linux). Called before anything of Qt is, on the main thread.
void PrepareProcess();

/// From now on whoever reads the output may leave: that ends nothing, and what is written then is lost.
void OutliveReaders();

/// The arguments without the program's name. Throws RequestError for one that cannot be represented.
QStringList Arguments(int argc, char** argv);

} // namespace BatchCli

#pragma once

#include "ZTBatchJob_p.h"

class QDomDocument;

/// Reads jobs from their XML form. Takes whatever there is: a section is the first element of its name, wherever it
/// stands, and what is missing or makes no sense takes the value that it has always had then.
namespace ZTBatchJobReader {

/// The job in `document`. Top-level nodes whose path exists now have a bookmark.
ZTBatchJob Read(const QDomDocument& document);

} // namespace ZTBatchJobReader

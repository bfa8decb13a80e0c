#pragma once

#include <QString>

class ZTBatchDocument;

namespace BatchCli {

/// A job for people: inputs as a tree, effects, and the output in the words of the options.
QString JobListing(const ZTBatchDocument& job);

} // namespace BatchCli

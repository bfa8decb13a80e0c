#include "SystemProtection.h"

namespace BatchProtocol {

SystemProtection SystemProtection::OfThisSystem()
{
    return {};
}

} // namespace BatchProtocol

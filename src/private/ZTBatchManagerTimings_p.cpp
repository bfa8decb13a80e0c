#include "ZTBatchManagerTimings_p.h"

ZTBatchManagerTimings& ZTBatchManagerTimings::InUse()
{
    static ZTBatchManagerTimings timings;
    return timings;
}

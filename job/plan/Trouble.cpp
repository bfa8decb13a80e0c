#include "Trouble.h"

namespace BatchJob {

bool CountsAsSkipped(Action action, int errorCode)
{
    return action == Action::FileSkipped &&
           (errorCode == ZTBatchMessage::FileNameAlreadyExists || errorCode == ZTBatchMessage::UnsupportedOutputFormat);
}

} // namespace BatchJob

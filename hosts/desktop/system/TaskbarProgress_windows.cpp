// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TaskbarProgress.h"

#include <qt_windows.h>
#include <shobjidl.h>

namespace BatchDesktop {

/// The button of the window. Its list is a COM object, which may be missing.
class TaskbarProgress::Link
{
public:
    explicit Link(QWidget& window)
        : window(window)
    {
        void* found = nullptr;
        if (SUCCEEDED(CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3, &found))) {
            list = static_cast<ITaskbarList3*>(found);
        }
    }

    ~Link()
    {
        if (list != nullptr) {
            list->Release();
        }
    }

    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

    void Update() const
    {
        if (list == nullptr || window.internalWinId() == 0) {
            return;
        }
        const auto handle = reinterpret_cast<HWND>(window.internalWinId());
        const TBPFLAG usual = isUrgent ? TBPF_PAUSED : TBPF_NORMAL;
        list->SetProgressState(handle, percent < 0 ? TBPF_NOPROGRESS : usual);
        if (percent >= 0) {
            list->SetProgressValue(handle, ULONGLONG(percent), 100);
        }
    }

    int percent = -1; ///< negative as long as none is shown
    bool isUrgent = false;

private:
    QWidget& window;
    ITaskbarList3* list = nullptr;
};

TaskbarProgress::TaskbarProgress(QWidget& window)
    : link(std::make_unique<Link>(window))
{
}

TaskbarProgress::~TaskbarProgress() = default;

void TaskbarProgress::Show(int percent)
{
    link->percent = percent;
    link->Update();
}

void TaskbarProgress::SetUrgent(bool isUrgent)
{
    link->isUrgent = isUrgent;
    link->Update();
}

void TaskbarProgress::Hide()
{
    link->percent = -1;
    link->Update();
}

} // namespace BatchDesktop

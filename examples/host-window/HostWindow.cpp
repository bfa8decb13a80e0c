// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HostWindow.h"

// step 2 begins
#include "InputPanel.h"
// step 2 ends
// step 4 begins
#include "OutputPanel.h"
// step 4 ends
// step 6 begins
#include "PolicyPanel.h"
// step 6 ends
// step 5 begins
#include "RunPanel.h"
// step 5 ends

// step 4 begins
#include <ZTStyle.h>
// step 4 ends

// step 2 begins
#include <QVBoxLayout>
// step 2 ends

HostWindow::HostWindow()
{
    setWindowTitle(QStringLiteral("Pictures in batches"));
    resize(800, 700);
    // step 2 begins
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new InputPanel(*job.GetInputModel()));
    // step 2 ends
    // step 4 begins
    layout->addWidget(new OutputPanel(*job.GetOutputSettings()));
    job.GetStyle()->AppendEffect(QStringLiteral("auto-levels"), QByteArray(), true);
    // step 4 ends
    // step 6 begins
    layout->addWidget(new PolicyPanel);
    // step 6 ends
    // step 5 begins
    layout->addWidget(new RunPanel(job));
    // step 5 ends
}

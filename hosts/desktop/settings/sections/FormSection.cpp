// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormSection.h"

namespace BatchDesktop {

void FormSection::MakeForm()
{
    form = new BoundForm(Title(), Id(), Job(), Dialogs(), this);
    SetContent(form);
}

void FormSection::Refresh()
{
    form->Show(Parameters());
    const QString problem = Problem();
    form->SetProblem(problem);
    ShowState(State(), problem);
}

} // namespace BatchDesktop

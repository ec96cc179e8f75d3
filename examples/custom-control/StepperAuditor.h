// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditor.h"

class Stepper;

/// Listens to one stepper.
class StepperAuditor : public LuAuditor {
public:
    /// The user has stepped; the stepper's `value` is the new one.
    virtual void stepper(Stepper* stepper) = 0;

protected:
    ~StepperAuditor() override = default;
};

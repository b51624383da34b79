// The power limits page: nominal value and limits of the power factor and of active, reactive and apparent power.
#pragma once

#include "KZDriver.h"
#include "LimitsPage.h"

class CDlgLimitsPowerZEP : public LimitsPage {
public:
    // The driver is not owned.
    explicit CDlgLimitsPowerZEP(KZDriver* driver);

protected:
    void SetLabels() override;
    void PlanLayout(LayoutPlan& plan) override;
    [[nodiscard]] int RowLabelId(std::size_t variable) const noexcept override;

private:
    [[maybe_unused]] KZDriver* m_pDriver;  // part of the page, though nothing on it depends on the device
};

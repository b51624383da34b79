// A harmonic limits page: nominal value and upper limits of one side's harmonic currents, orders 1 to 25.
#pragma once

#include "LimitsPage.h"

class CDlgLimitsArmonicZEP : public LimitsPage {
public:
    explicit CDlgLimitsArmonicZEP(zep::Side side);

protected:
    void SetLabels() override;
    void PlanLayout(LayoutPlan& plan) override;
    [[nodiscard]] int RowLabelId(std::size_t variable) const noexcept override;
    [[nodiscard]] KZBasicString SideName() const override;

private:
    zep::Side m_side;
};

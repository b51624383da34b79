// The module's dialogs, opened by the ways that the host opens them, and their templates alone.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "BareDialog.h"
#include "BenchPlant.h"
#include "OwnerWindow.h"

struct Road {
    const char* dialog;
    std::function<void()> open;  // until the owner window closes it
    BareDialog bare;
    std::optional<double> limit;  // of the ratio of the two
};

class OptionsHub;

class Roads {
public:
    Roads();
    ~Roads();
    Roads(const Roads&) = delete;
    Roads& operator=(const Roads&) = delete;

    [[nodiscard]] std::vector<Road> All();
    [[nodiscard]] OwnerWindow& Owner() noexcept { return m_owner; }

private:
    void OpenSelection();

    BenchPlant m_plant;
    OwnerWindow m_owner;
    std::unique_ptr<OptionsHub> m_hub;
};

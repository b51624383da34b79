// A device dialog that runs by itself, and the project around it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <new>

#include "KZBaseDeviceCfg.h"
#include "KZDriverDeviceZEP.h"
#include "KZMainCfg.h"
#include "MessageBoxes.h"
#include "TemporaryFolder.h"

namespace fs = std::filesystem;

inline constexpr unsigned AnyTemplate = 1199;  // the host's own options dialog: any template will do
inline constexpr int Closed = 55;

class DeviceDialog : public KZBaseDeviceCfg {
public:
    explicit DeviceDialog(KZDriver* driver) : KZBaseDeviceCfg(driver, AnyTemplate, nullptr) {}

    // Runs the dialog and does the step while it is open.
    INT_PTR Run(std::function<void()> step = [] {})
    {
        m_step = std::move(step);
        return DoModal();
    }
    bool Write(bool quiet = false) { return writeCfg(quiet); }
    [[nodiscard]] std::wstring Version() { return Document()->Root()->Value(L"information/version", L"?"); }

    KZBasicString uriParams;
    void (*fail)() = nullptr;  // instead of adding them

protected:
    BOOL OnInitDialog() override
    {
        KZBaseDeviceCfg::OnInitDialog();
        m_step();
        EndDialog(Closed);
        return TRUE;
    }
    void addUriParams(KZBasicString& uri) const override
    {
        if (fail)
            fail();
        uri += uriParams;
    }

private:
    std::function<void()> m_step;
};

class DeviceCfg : public testing::Test {
protected:
    DeviceCfg() { KZMainCfg::SetProjectFolder(m_project.Path().wstring()); }
    ~DeviceCfg() override { KZMainCfg::SetProjectFolder({}); }

    fs::path WriteDocument(const std::string& bytes) { return m_project.Write(L"devices/zep-01.xml", bytes); }
    [[nodiscard]] fs::path DocumentFile() const { return m_project.Path() / L"devices" / L"zep-01.xml"; }

    kztest::TemporaryFolder m_project;
    kztest::MessageBoxes m_boxes;
    KZDriverDeviceZEP m_device{{L"zep-01", L"Filter 1", 1, L"ZEP", L"", {}}};
    DeviceDialog m_dialog{&m_device};
};

inline constexpr char Version3[] = "<device><information><version>3.1</version></information></device>";

// The two ways in which memory runs out: that of the C++ library and that of MFC.
inline constexpr void (*MemoryFailures[])() = {[] { throw std::bad_alloc(); }, [] { AfxThrowMemoryException(); }};

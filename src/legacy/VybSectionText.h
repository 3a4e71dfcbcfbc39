#pragma once

#include <span>
#include <string>

namespace Tevra {

/// The section description of a legacy section: its shape code (0 to 50), the text that it was
/// stored with, and its properties A, Iyy, Izz, J, Ky, Kz, which only explicit sections use.
std::wstring VybSectionText(int shape, const std::wstring& stored,
                            std::span<const float> properties);

}  // namespace Tevra

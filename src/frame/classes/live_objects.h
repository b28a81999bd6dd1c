#pragma once

namespace orlin {

/// Whether anybody still holds an object that can be called by name.
[[nodiscard]] bool AnyLiveObject() noexcept;

}  // namespace orlin

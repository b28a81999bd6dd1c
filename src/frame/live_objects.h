#pragma once

namespace orlin {

/// Whether a host still holds an object of a public class that it created by name.
[[nodiscard]] bool AnyLiveObject() noexcept;

}  // namespace orlin

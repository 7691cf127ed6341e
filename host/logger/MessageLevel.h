#pragma once

/// How much a message matters, from the least to the most.
enum class MessageLevel { Debug, Information, Warning, Error };

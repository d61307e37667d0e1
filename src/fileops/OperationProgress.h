#pragma once
#include "core/Progress.h"

namespace nomra::fileops {

enum class OperationKind { Copy, Move, Trash, Delete };

// The language key a progress shows while files are copied, moved, put in
// the trash or deleted ("msgCopying").
const char* ProgressTaskOf(OperationKind kind);

}  // namespace nomra::fileops

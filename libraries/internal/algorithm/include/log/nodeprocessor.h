#pragma once

#include <memory>
#include <typeinfo>
#include <vector>

namespace algo::log {

class Node;

/// What a listener implements to take part in a run log. One processor serves a whole tree.
///
/// `childrenChanged` runs under the mutex of the node that got the child, which is not recursive: a
/// processor must not add to that node from within the call. `accepts` runs outside the lock.
class NodeProcessor {
public:
    virtual ~NodeProcessor() = default;

    /// A child was appended; `children` are all children of its parent, in order of arrival.
    virtual void childrenChanged(const std::vector<std::unique_ptr<Node>>& children) = 0;

    /// Whether a node of `nodeType` may be made under `parent`; asked before it is made.
    virtual bool accepts(const std::type_info& nodeType, const Node& parent) = 0;
};

} // namespace algo::log

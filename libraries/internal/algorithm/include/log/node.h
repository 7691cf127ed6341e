#pragma once

#include "log/nodeprocessor.h"

#include <ctime>
#include <functional>
#include <memory>
#include <mutex>
#include <sstream>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

namespace algo::log {

/// A node of the run log: a record of what an algorithm did, kept as a tree.
///
/// The caller owns the root and hands a `Node*` down; a null pointer means that nobody listens. All
/// nodes of a tree share one processor, which must not be null once something is added. A node is
/// attached once, is owned by its parent, and but for `children` doesn't change after that.
/// Threads may add under one node at the same time; its mutex guards `children` alone.
class Node {
public:
    template <class NodeType>
    class ScopedAction;

    /// A node without parent or children, stamped with the present time.
    Node(const std::string& message, NodeProcessor* nodeProcessor)
        : time(now()), text(message), processor(nodeProcessor) {}
    virtual ~Node() = default;
    virtual std::string objectTypeName() const { return {}; }
    virtual std::string message() const { return text; }
    virtual void refresh() {}

    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;

    /// Appends `child` and tells the processor; a null pointer does nothing.
    void addChild(std::unique_ptr<Node> child);

    /// Appends a `NodeType` with the stream's text, unless the processor refuses that type.
    template <class NodeType>
    void add(std::stringstream& stream, NodeProcessor* nodeProcessor);

    /// Appends a `NodeType` and returns a guard that runs `action` on it at the end of its scope.
    /// Where the processor refuses the type, nothing is appended and the guard is inactive.
    template <class NodeType>
    ScopedAction<NodeType> addScoped(const std::function<void(NodeType&)>& action, const char* message,
                                     NodeProcessor* nodeProcessor);

    /// The process's clock in thousands of ticks, the unit of `time` and of `NodeMethodCall::endTime`.
    static double now() { return static_cast<double>(std::clock()) / 1000.0; }

    const double time;
    Node* parent = nullptr;
    std::vector<std::unique_ptr<Node>> children;
    const std::string text;
    std::mutex mutex;
    NodeProcessor* const processor;
};

/// Runs an action on a node when it goes out of scope, also when an exception ends the scope.
///
/// An empty action on an active guard raises `std::bad_function_call` from the destructor.
template <class NodeType>
class Node::ScopedAction {
public:
    ScopedAction() = default;
    ScopedAction(std::function<void(NodeType&)> scopedAction, NodeType* actedNode)
        : active(true), action(std::move(scopedAction)), node(actedNode) {}
    ScopedAction(ScopedAction&& other) noexcept
        : active(std::exchange(other.active, false)), action(std::move(other.action)), node(other.node) {}
    virtual ~ScopedAction() noexcept(false) {
        if (active) {
            action(*node);
        }
    }

    ScopedAction(const ScopedAction&) = delete;
    ScopedAction& operator=(const ScopedAction&) = delete;
    ScopedAction& operator=(ScopedAction&&) = delete;

    bool active = false;
    std::function<void(NodeType&)> action;
    NodeType* node = nullptr;
};

inline void Node::addChild(std::unique_ptr<Node> child) {
    if (!child) {
        return;
    }
    const std::lock_guard<std::mutex> lock(mutex);
    child->parent = this;
    children.push_back(std::move(child));
    processor->childrenChanged(children);
}

template <class NodeType>
void Node::add(std::stringstream& stream, NodeProcessor* nodeProcessor) {
    if (processor->accepts(typeid(NodeType), *this)) {
        addChild(std::make_unique<NodeType>(stream.str(), nodeProcessor));
    }
}

template <class NodeType>
Node::ScopedAction<NodeType> Node::addScoped(const std::function<void(NodeType&)>& action,
                                             const char* message, NodeProcessor* nodeProcessor) {
    if (!processor->accepts(typeid(NodeType), *this)) {
        return {};
    }
    auto child = std::make_unique<NodeType>(message, nodeProcessor);
    NodeType* const node = child.get();
    addChild(std::move(child));
    return ScopedAction<NodeType>(action, node);
}

} // namespace algo::log

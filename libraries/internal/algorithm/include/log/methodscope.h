#pragma once

#include "log/nodekinds.h"
#include "log/nodeobject.h"

#include <memory>
#include <sstream>
#include <string>
#include <typeinfo>
#include <utility>

namespace algo::log {

/// What a logging method holds for its duration: its own node, with remarks under it.
///
/// Without a listener, or with one that refuses method nodes, every call costs a test of a pointer.
class MethodScope {
public:
    MethodScope(Node* log, const char* signature) : m_guard(open(log, signature)) {}

    /// A remark under this call's node: the pieces, one behind the other.
    template <class Kind = NodeInfo, class... Pieces>
    void remark(const Pieces&... pieces) const {
        if (m_guard.node == nullptr) {
            return;
        }
        std::stringstream stream;
        (stream << ... << pieces);
        m_guard.node->template add<Kind>(stream, m_guard.node->processor);
    }

    /// Keeps a copy of an object under this call's node, for a listener that takes such.
    template <class Object>
    void keep(const std::string& text, Object object) const {
        NodeMethodCall* const node = m_guard.node;
        if (node == nullptr || !node->processor->accepts(typeid(NodeObject<Object>), *node)) {
            return;
        }
        node->addChild(std::make_unique<NodeObject<Object>>(text, std::move(object), node->processor));
    }

private:
    using Guard = Node::ScopedAction<NodeMethodCall>;

    static Guard open(Node* log, const char* signature) {
        if (log == nullptr) {
            return {};
        }
        const auto stampEnd = [](NodeMethodCall& call) { call.endTime = Node::now(); };
        return log->addScoped<NodeMethodCall>(stampEnd, signature, log->processor);
    }

    Guard m_guard;
};

} // namespace algo::log

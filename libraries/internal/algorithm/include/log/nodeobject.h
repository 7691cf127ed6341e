#pragma once

#include "log/node.h"

#include <string>
#include <typeinfo>
#include <utility>

namespace algo::log {

/// The formatting side of a logged object; a place for a reader of logs to attach to.
template <class Object>
class ObjectFormator {
public:
    ObjectFormator() = default;
    ObjectFormator(const ObjectFormator&) = default;
    ObjectFormator& operator=(const ObjectFormator&) = default;
    virtual ~ObjectFormator() = default;
};

/// Keeps the logged object; a shared pointer here keeps what it points to alive with the log.
template <class Object>
class ObjectProcessor {
public:
    explicit ObjectProcessor(Object kept) : object(std::move(kept)) {}

    Object object;
};

/// An object kept in the log. `Object` is a shared pointer, not null.
template <class Object>
class NodeObject : public Node, public ObjectFormator<Object>, public ObjectProcessor<Object> {
public:
    NodeObject(const std::string& message, Object kept, NodeProcessor* nodeProcessor)
        : Node(message, nodeProcessor), ObjectProcessor<Object>(std::move(kept)) {}

    /// The run-time type name of what is pointed to, so one filter can be told from another.
    std::string objectTypeName() const override {
        const auto& target = *this->object;
        return typeid(target).name();
    }
    void refresh() override {}
};

} // namespace algo::log

#pragma once

#include "log/node.h"

namespace algo::log {

/// A remark. The kinds of node differ by type alone; readers and processors tell them by `typeid`.
class NodeInfo : public Node {
public:
    using Node::Node;
};

/// A doubtful but legal outcome.
class NodeWarning : public Node {
public:
    using Node::Node;
};

/// A failure, added by the exception that reports it.
class NodeError : public Node {
public:
    using Node::Node;
};

/// A method's scope; the text is the method's full signature.
class NodeMethodCall : public Node {
public:
    using Node::Node;

    double endTime = 0.0; ///< same unit as `time`; `endTime - time` is the method's duration
};

} // namespace algo::log

#include "TLooseParts.h"

#include "TNode.h"

namespace TechPlot {

TLooseParts::~TLooseParts() {
    while (!m_nodes.empty())
        delete m_nodes.front(); // takes itself out
}

void TLooseParts::add(TNode& node) {
    node.m_loose = this;
    node.m_place = m_nodes.insert(m_nodes.end(), &node);
}

void TLooseParts::remove(TNode& node) {
    m_nodes.erase(node.m_place);
    node.m_loose = nullptr;
}

void TLooseParts::adopt(TLooseParts& other, quint64 serial) {
    for (auto place = other.m_nodes.begin(); place != other.m_nodes.end();) {
        TNode& node = **place++;
        if (node.serial() > serial) {
            other.remove(node);
            add(node);
        }
    }
}

} // namespace TechPlot

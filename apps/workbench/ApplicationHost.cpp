#include "ApplicationHost.h"

ApplicationHost::ApplicationHost(QWidget& window) : m_window(window) {}

ApplicationHost::~ApplicationHost() = default;

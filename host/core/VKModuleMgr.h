#pragma once

/// Base of the objects that manage one side of a module for its controller.
class VKModuleMgr {
public:
    VKModuleMgr() = default;
    virtual ~VKModuleMgr();
    VKModuleMgr(const VKModuleMgr&) = delete;
    VKModuleMgr& operator=(const VKModuleMgr&) = delete;

    /// Page of the user guide; 0, the guide's first page, unless a manager has one of its own.
    virtual int getIdForHelp() const;
};

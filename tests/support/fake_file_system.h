#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "core/ports/file_system.h"

namespace qor::test {

// An in-memory disk. Paths are absolute, "/" separated; folders are kept
// without their trailing "/". Faults are set per path:
//   readOnly: folders whose content cannot change (Permission denied);
//   capacity: the bytes all files may hold together (Disk full past it);
//   links: entries that are symbolic links (path -> where they point).
// Every change is logged in order: "mkdir p", "rmdir p", "write p",
// "append p", "copy a -> b", "rename a -> b", "remove p", "temp p".
class FakeFileSystem : public FileSystem {
public:
    std::map<std::string, std::string> files;
    std::set<std::string> folders = {"/"};
    std::map<std::string, std::string> links;
    std::set<std::string> readOnly;
    std::uint64_t capacity = UINT64_MAX;
    std::vector<std::string> log;
    std::string home = "/home/u/";
    std::string desktop = "/home/u/Bureau/";
    // Bytes per progress report of a copy.
    std::uint64_t chunk = 4;
    int temps = 0;

    // Folders (with their parents) and files, for setting up a test.
    void addFolder(const std::string& path)
    {
        std::string p = norm(path);
        while (p != "/" && !p.empty()) {
            folders.insert(p);
            p = parent(p);
        }
    }
    void addFile(const std::string& path, std::string bytes)
    {
        addFolder(parent(norm(path)));
        files[norm(path)] = std::move(bytes);
    }
    bool hasFile(const std::string& path) const { return files.count(norm(path)) > 0; }
    std::string bytes(const std::string& path) const
    {
        auto it = files.find(norm(path));
        return it == files.end() ? "<missing>" : it->second;
    }
    // The log lines that begin with prefix.
    std::vector<std::string> logged(const std::string& prefix) const
    {
        std::vector<std::string> out;
        for (const auto& l : log)
            if (l.rfind(prefix, 0) == 0)
                out.push_back(l);
        return out;
    }
    // Every file path under folder, in order.
    std::vector<std::string> filesUnder(const std::string& folder) const
    {
        std::vector<std::string> out;
        const std::string f = norm(folder) + "/";
        for (const auto& [p, b] : files)
            if (p.rfind(f, 0) == 0)
                out.push_back(p);
        return out;
    }

    PathKind kind(const std::string& path) override
    {
        const std::string p = norm(path);
        if (links.count(p))
            return PathKind::Link;
        if (folders.count(p))
            return PathKind::Folder;
        return files.count(p) ? PathKind::File : PathKind::None;
    }
    bool isFolder(const std::string& path) override { return folders.count(follow(norm(path))) > 0; }
    std::optional<std::uint64_t> fileSize(const std::string& path) override
    {
        auto it = files.find(follow(norm(path)));
        if (it == files.end())
            return std::nullopt;
        return it->second.size();
    }
    std::vector<std::string> entryNames(const std::string& folder) override
    {
        const std::string f = follow(norm(folder));
        std::vector<std::string> out;
        auto add = [&](const std::string& p) {
            if (p != f && parent(p) == f)
                out.push_back(p.substr(p.rfind('/') + 1));
        };
        for (const auto& [p, b] : files)
            add(p);
        for (const auto& p : folders)
            add(p);
        for (const auto& [p, to] : links)
            add(p);
        return out;
    }
    Status createFolder(const std::string& path) override
    {
        const std::string p = norm(path);
        if (Status s = writable(p); !s)
            return s;
        if (kind(p) != PathKind::None)
            return makeError(err::PathFileAccess, "exists: " + p);
        folders.insert(p);
        log.push_back("mkdir " + p);
        return {};
    }
    void removeFilesIn(const std::string& folder) override
    {
        const std::string f = norm(folder);
        if (links.count(f) || !folders.count(f) || readOnly.count(f))
            return;
        for (const auto& p : filesUnder(f))
            if (parent(p) == f)
                (void)removeFile(p);
        for (auto it = links.begin(); it != links.end();)
            it = parent(it->first) == f ? (log.push_back("remove " + it->first), links.erase(it)) : std::next(it);
    }
    Status removeFolder(const std::string& path) override
    {
        const std::string p = norm(path);
        if (!folders.count(p) || links.count(p))
            return makeError(err::PathNotFound, p);
        if (Status s = writable(p); !s)
            return s;
        for (const auto& f : folders)
            if (f != p && parent(f) == p)
                return makeError(err::PathFileAccess, "not empty: " + p);
        if (!filesUnder(p).empty())
            return makeError(err::PathFileAccess, "not empty: " + p);
        folders.erase(p);
        log.push_back("rmdir " + p);
        return {};
    }
    Status removeFile(const std::string& path) override
    {
        const std::string p = norm(path);
        if (!files.count(p))
            return makeError(err::FileNotFound, p);
        if (Status s = writable(p); !s)
            return s;
        files.erase(p);
        log.push_back("remove " + p);
        return {};
    }
    Status rename(const std::string& from, const std::string& to) override
    {
        const std::string a = norm(from), b = norm(to);
        if (!files.count(a))
            return makeError(err::FileNotFound, a);
        if (Status s = writable(b); !s)
            return s;
        links.erase(b);
        files[b] = std::move(files[a]);
        files.erase(a);
        log.push_back("rename " + a + " -> " + b);
        return {};
    }
    Status copyFile(const std::string& from, const std::string& to, const CopyProgress& progress) override
    {
        const std::string a = follow(norm(from)), b = norm(to);
        auto it = files.find(a);
        if (from.empty() || it == files.end())
            return makeError(err::FileNotFound, "Fichier introuvable : " + from);
        if (a == b)
            return {};
        const std::string content = it->second;
        if (Status s = store(b, content); !s)
            return s;
        for (std::uint64_t done = std::min<std::uint64_t>(chunk, content.size()); progress && done > 0;
             done = std::min<std::uint64_t>(done + chunk, content.size())) {
            progress(done);
            if (done == content.size())
                break;
        }
        log.push_back("copy " + a + " -> " + b);
        return {};
    }
    Status writeFile(const std::string& path, std::string_view bytes) override
    {
        const std::string p = norm(path);
        if (Status s = store(p, std::string(bytes)); !s)
            return s;
        log.push_back("write " + p);
        return {};
    }
    Status appendToFile(const std::string& path, std::string_view bytes) override
    {
        const std::string p = norm(path);
        if (!files.count(p))
            return makeError(err::FileNotFound, p);
        if (Status s = store(p, files[p] + std::string(bytes)); !s)
            return s;
        log.push_back("append " + p);
        return {};
    }
    Result<std::string> readRange(const std::string& path, std::uint64_t offset, std::size_t count) override
    {
        auto whole = readFile(path);
        if (!whole)
            return whole;
        return offset >= whole->size() ? std::string() : whole->substr(offset, count);
    }
    Result<std::string> readFile(const std::string& path) override
    {
        auto it = files.find(follow(norm(path)));
        if (it == files.end())
            return makeError(err::FileNotFound, path);
        return it->second;
    }
    Result<std::string> createTempFile() override
    {
        addFolder("/tmp");
        const std::string p = "/tmp/qor-" + std::to_string(++temps) + ".dat";
        files[p] = "";
        log.push_back("temp " + p);
        return p;
    }
    Result<std::string> createTempFolder() override
    {
        const std::string p = "/tmp/qor-" + std::to_string(++temps);
        addFolder(p);
        log.push_back("temp " + p);
        return p + "/";
    }
    std::string homeFolder() override { return home; }
    std::string desktopFolder() override { return desktop; }

    static std::string norm(const std::string& path)
    {
        std::string p = path;
        while (p.size() > 1 && p.back() == '/')
            p.pop_back();
        return p;
    }
    static std::string parent(const std::string& path)
    {
        const auto slash = path.find_last_of('/');
        return slash == 0 || slash == std::string::npos ? "/" : path.substr(0, slash);
    }

private:
    std::string follow(const std::string& p) const
    {
        auto it = links.find(p);
        return it == links.end() ? p : it->second;
    }
    Status writable(const std::string& p) const
    {
        if (!folders.count(parent(p)) || links.count(parent(p)))
            return makeError(err::PathNotFound, "Chemin d'accès introuvable : " + p);
        if (readOnly.count(parent(p)))
            return makeError(err::PermissionDenied, "Permission refusée : " + p);
        return {};
    }
    Status store(const std::string& p, std::string content)
    {
        if (Status s = writable(p); !s)
            return s;
        std::uint64_t used = 0;
        for (const auto& [path, b] : files)
            used += path == p ? 0 : b.size();
        if (used + content.size() > capacity)
            return makeError(err::DiskFull, "Disque plein : " + p);
        links.erase(p);
        files[p] = std::move(content);
        return {};
    }
};

}  // namespace qor::test

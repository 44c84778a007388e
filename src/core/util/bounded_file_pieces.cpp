// Batched reads for BoundedFile: io_uring when built with liburing and the
// kernel allows it, else one positioned read per piece.
#include <cerrno>
#include <cstring>
#include <unistd.h>

#include "core/util/bounded_file.h"

#ifdef TARVIK_HAVE_URING
#include <liburing.h>
#endif

namespace tarvik {

namespace {

#ifdef TARVIK_HAVE_URING
constexpr unsigned kRingEntries = 256;

// One ring per thread, made on first use and kept: setting a ring up and
// taking it down costs more than the reads of a short walk.
class Ring {
public:
    Ring() { ok_ = io_uring_queue_init(kRingEntries, &ring_, 0) >= 0; }
    ~Ring() {
        if (ok_) io_uring_queue_exit(&ring_);
    }
    Ring(const Ring&) = delete;
    Ring& operator=(const Ring&) = delete;
    io_uring* get() { return ok_ ? &ring_ : nullptr; }
    // The kernel would not run this ring: drop it, with whatever it still
    // holds, and read the plain way on this thread from now on.
    void giveUp() {
        if (ok_) io_uring_queue_exit(&ring_);
        ok_ = false;
    }

private:
    io_uring ring_{};
    bool ok_ = false;
};

// -1: the ring could not be used at all (the caller reads piece by piece);
// otherwise whether every piece was read in full.
int readWithRing(int fd, BoundedFile::Piece* pieces, std::size_t count) {
    thread_local Ring threadRing;
    io_uring* ring = threadRing.get();
    if (!ring) return -1;
    std::size_t submitted = 0, sent = 0, completed = 0;  // prepared, taken by the kernel, answered
    bool ok = true, refused = false;
    while (completed < count) {
        while (submitted < count) {
            io_uring_sqe* sqe = io_uring_get_sqe(ring);
            if (!sqe) break;
            const BoundedFile::Piece& p = pieces[submitted];
            io_uring_prep_read(sqe, fd, p.dst, static_cast<unsigned>(p.size), static_cast<__u64>(p.offset));
            sqe->user_data = submitted++;
        }
        const int r = io_uring_submit_and_wait(ring, 1);
        if (r < 0 && r != -EINTR) {
            refused = true;  // a kernel or sandbox that sets up rings but will not run them
            break;
        }
        if (r > 0) sent += static_cast<std::size_t>(r);
        io_uring_cqe* cqe;
        unsigned head, seen = 0;
        io_uring_for_each_cqe(ring, head, cqe) {
            ++seen;
            const BoundedFile::Piece& p = pieces[cqe->user_data];
            if (cqe->res < 0 || static_cast<std::size_t>(cqe->res) != p.size) {
                // What the ring did not read in full (a short read at the
                // file's end, an operation an older kernel refuses) is read
                // the plain way, which tells a retry from a real end or error.
                const std::size_t done = cqe->res > 0 ? static_cast<std::size_t>(cqe->res) : 0;
                if (pread(fd, static_cast<char*>(p.dst) + done, p.size - done, static_cast<off_t>(p.offset + done)) ==
                    static_cast<ssize_t>(p.size - done))
                    continue;
                ok = false;
            }
        }
        io_uring_cq_advance(ring, seen);
        completed += seen;
    }
    // Reads still under way must end before their buffers go, and the ring
    // is left empty for the next caller.
    while (completed < sent) {
        io_uring_cqe* cqe;
        if (io_uring_wait_cqe(ring, &cqe) < 0) break;
        io_uring_cqe_seen(ring, cqe);
        ++completed;
    }
    if (refused) {
        threadRing.giveUp();
        return -1;
    }
    return ok ? 1 : 0;
}
#endif

}  // namespace

bool BoundedFile::readPieces(Piece* pieces, std::size_t count) const {
    for (std::size_t i = 0; i < count; ++i)
        if (pieces[i].offset > size_ || pieces[i].size > size_ - pieces[i].offset) return false;
#ifdef TARVIK_HAVE_URING
    // Worth a ring only for more than a few pieces.
    if (fd_ >= 0 && count > 4) {
        const int r = readWithRing(fd_, pieces, count);
        if (r == 1) return true;
        if (r == 0) {
            failed_ = true;
            return false;
        }
    }
#endif
    for (std::size_t i = 0; i < count; ++i)
        if (!readAt(pieces[i].offset, pieces[i].dst, pieces[i].size)) return false;
    return true;
}

}  // namespace tarvik

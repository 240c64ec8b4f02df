#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <QMetaObject>
#include <QObject>

// Preloaded into the application-core tests under ThreadSanitizer.
//
// Qt hands a queued call from the posting thread to the receiving thread through its
// event queue, guarded by futex-based mutexes inside the uninstrumented Qt libraries.
// ThreadSanitizer cannot see that synchronisation and would take every capture of a
// posted functor for a race. These two hooks restate the hand-off without changing
// what Qt does: the posting side releases before Qt queues the call, the receiving
// side acquires before Qt delivers an event to an object whose class is ours (Qt's
// own classes bind to their own QObject::event and never reach this one).
namespace {

char handOff;

template <typename Fn>
Fn next(const char* mangledName) {
    return reinterpret_cast<Fn>(dlsym(RTLD_NEXT, mangledName));
}

}  // namespace

bool QMetaObject::invokeMethodImpl(QObject* object, QtPrivate::QSlotObjectBase* slot,
                                   Qt::ConnectionType type, void* ret) {
    using Fn = bool (*)(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*);
    static const Fn qt = next<Fn>(
        "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14"
        "ConnectionTypeEPv");
    __tsan_release(&handOff);
    return qt(object, slot, type, ret);
}

bool QObject::event(QEvent* event) {
    using Fn = bool (*)(QObject*, QEvent*);
    static const Fn qt = next<Fn>("_ZN7QObject5eventEP6QEvent");
    __tsan_acquire(&handOff);
    return qt(this, event);
}

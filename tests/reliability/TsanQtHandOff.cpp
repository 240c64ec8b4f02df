#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <QMetaObject>
#include <QObject>

// Preloaded into the application-core tests under ThreadSanitizer. Qt hands a queued
// call to the receiving thread under futex-based mutexes inside its uninstrumented
// libraries, so ThreadSanitizer would take every capture of a posted functor for a
// race. These hooks restate the hand-off without changing what Qt does: release before
// Qt queues a call, acquire before it delivers an event to an object of one of our
// classes (Qt's own classes bind to Qt's QObject::event and never reach this one).
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

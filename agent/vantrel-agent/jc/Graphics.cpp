#include "Graphics.h"
#include "../common.h"
#include  <assert.h>

namespace NSGraphics{

	CACHE_JAVA_CLASS(Graphics) = NULL;

	//fields(0)

	//methods(50)

	CACHE_JAVA_METHOD(Graphics, finalize, 0) = NULL;

	CACHE_JAVA_METHOD(Graphics, toString, 1) = NULL;

	CACHE_JAVA_METHOD(Graphics, setColor, 2) = NULL;

	CACHE_JAVA_METHOD(Graphics, create, 3) = NULL;

	CACHE_JAVA_METHOD(Graphics, create, 4) = NULL;

	CACHE_JAVA_METHOD(Graphics, hitClip, 5) = NULL;

	CACHE_JAVA_METHOD(Graphics, clipRect, 6) = NULL;

	CACHE_JAVA_METHOD(Graphics, getFontMetrics, 7) = NULL;

	CACHE_JAVA_METHOD(Graphics, getFontMetrics, 8) = NULL;

	CACHE_JAVA_METHOD(Graphics, setFont, 9) = NULL;

	CACHE_JAVA_METHOD(Graphics, getFont, 10) = NULL;

	CACHE_JAVA_METHOD(Graphics, dispose, 11) = NULL;

	CACHE_JAVA_METHOD(Graphics, getClipBounds, 12) = NULL;

	CACHE_JAVA_METHOD(Graphics, getClipBounds, 13) = NULL;

	CACHE_JAVA_METHOD(Graphics, setClip, 14) = NULL;

	CACHE_JAVA_METHOD(Graphics, setClip, 15) = NULL;

	CACHE_JAVA_METHOD(Graphics, clearRect, 16) = NULL;

	CACHE_JAVA_METHOD(Graphics, translate, 17) = NULL;

	CACHE_JAVA_METHOD(Graphics, getClip, 18) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawImage, 19) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawImage, 20) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawImage, 21) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawImage, 22) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawImage, 23) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawImage, 24) = NULL;

	CACHE_JAVA_METHOD(Graphics, getColor, 25) = NULL;

	CACHE_JAVA_METHOD(Graphics, draw3DRect, 26) = NULL;

	CACHE_JAVA_METHOD(Graphics, fill3DRect, 27) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawString, 28) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawString, 29) = NULL;

	CACHE_JAVA_METHOD(Graphics, fillRect, 30) = NULL;

	CACHE_JAVA_METHOD(Graphics, setPaintMode, 31) = NULL;

	CACHE_JAVA_METHOD(Graphics, setXORMode, 32) = NULL;

	CACHE_JAVA_METHOD(Graphics, copyArea, 33) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawLine, 34) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawRect, 35) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawRoundRect, 36) = NULL;

	CACHE_JAVA_METHOD(Graphics, fillRoundRect, 37) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawOval, 38) = NULL;

	CACHE_JAVA_METHOD(Graphics, fillOval, 39) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawArc, 40) = NULL;

	CACHE_JAVA_METHOD(Graphics, fillArc, 41) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawPolyline, 42) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawPolygon, 43) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawPolygon, 44) = NULL;

	CACHE_JAVA_METHOD(Graphics, fillPolygon, 45) = NULL;

	CACHE_JAVA_METHOD(Graphics, fillPolygon, 46) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawChars, 47) = NULL;

	CACHE_JAVA_METHOD(Graphics, drawBytes, 48) = NULL;

	CACHE_JAVA_METHOD(Graphics, getClipRect, 49) = NULL;

	void finalize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, finalize, "()V", 0);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, finalize, 0));
	}

	jobject toString(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, toString, "()Ljava/lang/String;", 1);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics, toString, 1));
	}

	void setColor(JNIEnv *env, jobject _this, jobject Color0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, setColor, "(Ljava/awt/Color;)V", 2);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, setColor, 2), Color0);
	}

	jobject create(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, create, "(IIII)Ljava/awt/Graphics;", 3);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics, create, 3), Int0, Int1, Int2, Int3);
	}

	jobject create(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, create, "()Ljava/awt/Graphics;", 4);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics, create, 4));
	}

	jboolean hitClip(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, hitClip, "(IIII)Z", 5);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Graphics, hitClip, 5), Int0, Int1, Int2, Int3);
	}

	void clipRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, clipRect, "(IIII)V", 6);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, clipRect, 6), Int0, Int1, Int2, Int3);
	}

	jobject getFontMetrics(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, getFontMetrics, "()Ljava/awt/FontMetrics;", 7);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics, getFontMetrics, 7));
	}

	jobject getFontMetrics(JNIEnv *env, jobject _this, jobject Font0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, getFontMetrics, "(Ljava/awt/Font;)Ljava/awt/FontMetrics;", 8);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics, getFontMetrics, 8), Font0);
	}

	void setFont(JNIEnv *env, jobject _this, jobject Font0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, setFont, "(Ljava/awt/Font;)V", 9);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, setFont, 9), Font0);
	}

	jobject getFont(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, getFont, "()Ljava/awt/Font;", 10);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics, getFont, 10));
	}

	void dispose(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, dispose, "()V", 11);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, dispose, 11));
	}

	jobject getClipBounds(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, getClipBounds, "()Ljava/awt/Rectangle;", 12);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics, getClipBounds, 12));
	}

	jobject getClipBounds(JNIEnv *env, jobject _this, jobject Rectangle0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, getClipBounds, "(Ljava/awt/Rectangle;)Ljava/awt/Rectangle;", 13);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics, getClipBounds, 13), Rectangle0);
	}

	void setClip(JNIEnv *env, jobject _this, jobject Shape0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, setClip, "(Ljava/awt/Shape;)V", 14);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, setClip, 14), Shape0);
	}

	void setClip(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, setClip, "(IIII)V", 15);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, setClip, 15), Int0, Int1, Int2, Int3);
	}

	void clearRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, clearRect, "(IIII)V", 16);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, clearRect, 16), Int0, Int1, Int2, Int3);
	}

	void translate(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, translate, "(II)V", 17);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, translate, 17), Int0, Int1);
	}

	jobject getClip(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, getClip, "()Ljava/awt/Shape;", 18);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics, getClip, 18));
	}

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5, jint Int6, jint Int7, jint Int8, jobject Color9, jobject ImageObserver10){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawImage, "(Ljava/awt/Image;IIIIIIIILjava/awt/Color;Ljava/awt/image/ImageObserver;)Z", 19);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Graphics, drawImage, 19), Image0, Int1, Int2, Int3, Int4, Int5, Int6, Int7, Int8, Color9, ImageObserver10);
	}

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jint Int3, jint Int4, jobject Color5, jobject ImageObserver6){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawImage, "(Ljava/awt/Image;IIIILjava/awt/Color;Ljava/awt/image/ImageObserver;)Z", 20);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Graphics, drawImage, 20), Image0, Int1, Int2, Int3, Int4, Color5, ImageObserver6);
	}

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jobject Color3, jobject ImageObserver4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawImage, "(Ljava/awt/Image;IILjava/awt/Color;Ljava/awt/image/ImageObserver;)Z", 21);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Graphics, drawImage, 21), Image0, Int1, Int2, Color3, ImageObserver4);
	}

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jobject ImageObserver3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawImage, "(Ljava/awt/Image;IILjava/awt/image/ImageObserver;)Z", 22);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Graphics, drawImage, 22), Image0, Int1, Int2, ImageObserver3);
	}

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jint Int3, jint Int4, jobject ImageObserver5){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawImage, "(Ljava/awt/Image;IIIILjava/awt/image/ImageObserver;)Z", 23);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Graphics, drawImage, 23), Image0, Int1, Int2, Int3, Int4, ImageObserver5);
	}

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5, jint Int6, jint Int7, jint Int8, jobject ImageObserver9){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawImage, "(Ljava/awt/Image;IIIIIIIILjava/awt/image/ImageObserver;)Z", 24);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Graphics, drawImage, 24), Image0, Int1, Int2, Int3, Int4, Int5, Int6, Int7, Int8, ImageObserver9);
	}

	jobject getColor(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, getColor, "()Ljava/awt/Color;", 25);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics, getColor, 25));
	}

	void draw3DRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jboolean Boolean4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, draw3DRect, "(IIIIZ)V", 26);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, draw3DRect, 26), Int0, Int1, Int2, Int3, Boolean4);
	}

	void fill3DRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jboolean Boolean4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, fill3DRect, "(IIIIZ)V", 27);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, fill3DRect, 27), Int0, Int1, Int2, Int3, Boolean4);
	}

	void drawString(JNIEnv *env, jobject _this, jobject String0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawString, "(Ljava/lang/String;II)V", 28);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, drawString, 28), String0, Int1, Int2);
	}

	void drawStringWithAttributedCharacterIteratorIntInt(JNIEnv *env, jobject _this, jobject AttributedCharacterIterator0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawString, "(Ljava/text/AttributedCharacterIterator;II)V", 29);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, drawString, 29), AttributedCharacterIterator0, Int1, Int2);
	}

	void fillRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, fillRect, "(IIII)V", 30);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, fillRect, 30), Int0, Int1, Int2, Int3);
	}

	void setPaintMode(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, setPaintMode, "()V", 31);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, setPaintMode, 31));
	}

	void setXORMode(JNIEnv *env, jobject _this, jobject Color0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, setXORMode, "(Ljava/awt/Color;)V", 32);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, setXORMode, 32), Color0);
	}

	void copyArea(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, copyArea, "(IIIIII)V", 33);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, copyArea, 33), Int0, Int1, Int2, Int3, Int4, Int5);
	}

	void drawLine(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawLine, "(IIII)V", 34);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, drawLine, 34), Int0, Int1, Int2, Int3);
	}

	void drawRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawRect, "(IIII)V", 35);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, drawRect, 35), Int0, Int1, Int2, Int3);
	}

	void drawRoundRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawRoundRect, "(IIIIII)V", 36);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, drawRoundRect, 36), Int0, Int1, Int2, Int3, Int4, Int5);
	}

	void fillRoundRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, fillRoundRect, "(IIIIII)V", 37);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, fillRoundRect, 37), Int0, Int1, Int2, Int3, Int4, Int5);
	}

	void drawOval(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawOval, "(IIII)V", 38);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, drawOval, 38), Int0, Int1, Int2, Int3);
	}

	void fillOval(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, fillOval, "(IIII)V", 39);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, fillOval, 39), Int0, Int1, Int2, Int3);
	}

	void drawArc(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawArc, "(IIIIII)V", 40);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, drawArc, 40), Int0, Int1, Int2, Int3, Int4, Int5);
	}

	void fillArc(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, fillArc, "(IIIIII)V", 41);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, fillArc, 41), Int0, Int1, Int2, Int3, Int4, Int5);
	}

	void drawPolyline(JNIEnv *env, jobject _this, jintArray Int0, jintArray Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawPolyline, "([I[II)V", 42);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, drawPolyline, 42), Int0, Int1, Int2);
	}

	void drawPolygon(JNIEnv *env, jobject _this, jobject Polygon0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawPolygon, "(Ljava/awt/Polygon;)V", 43);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, drawPolygon, 43), Polygon0);
	}

	void drawPolygon(JNIEnv *env, jobject _this, jintArray Int0, jintArray Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawPolygon, "([I[II)V", 44);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, drawPolygon, 44), Int0, Int1, Int2);
	}

	void fillPolygon(JNIEnv *env, jobject _this, jobject Polygon0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, fillPolygon, "(Ljava/awt/Polygon;)V", 45);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, fillPolygon, 45), Polygon0);
	}

	void fillPolygon(JNIEnv *env, jobject _this, jintArray Int0, jintArray Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, fillPolygon, "([I[II)V", 46);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, fillPolygon, 46), Int0, Int1, Int2);
	}

	void drawChars(JNIEnv *env, jobject _this, jcharArray Char0, jint Int1, jint Int2, jint Int3, jint Int4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawChars, "([CIIII)V", 47);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, drawChars, 47), Char0, Int1, Int2, Int3, Int4);
	}

	void drawBytes(JNIEnv *env, jobject _this, jbyteArray Byte0, jint Int1, jint Int2, jint Int3, jint Int4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, drawBytes, "([BIIII)V", 48);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics, drawBytes, 48), Byte0, Int1, Int2, Int3, Int4);
	}

	jobject getClipRect(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics), "java/awt/Graphics");
		INIT_CACHE_METHOD(env, Graphics, getClipRect, "()Ljava/awt/Rectangle;", 49);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics, getClipRect, 49));
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, Graphics, "java/awt/Graphics");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, Graphics);
	}

}
